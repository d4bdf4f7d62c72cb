#pragma once

#include "platform/FileStatus.h"

#include <QString>

#include <optional>
#include <string>

namespace quillon {

enum class Verdict { yes, no, unknown };

/// Answers about single files that only the assistant can give. Never waits: what it doesn't know
/// it queues. Any thread.
class FileJudge {
public:
    virtual ~FileJudge() = default;

    [[nodiscard]] virtual Verdict verdict(const std::string& path, const QString& question) = 0;

    /// The file's new base name, without an extension.
    [[nodiscard]] virtual std::optional<QString> smartName(const std::string& path) = 0;

    /// A rule has moved the file, which was of this status, to another path: what is known of it
    /// there stays known.
    virtual void fileMoved(const std::string& from, const FileStatus& status,
                           const std::string& to) = 0;

    /// Whether a verdict or a name for the file is queued or being worked out.
    [[nodiscard]] virtual bool isWaiting(const std::string& path) = 0;
};

} // namespace quillon
