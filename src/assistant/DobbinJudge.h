#pragma once

#include "assistant/AnswerCache.h"
#include "assistant/FileKey.h"
#include "assistant/VerdictRequest.h"
#include "engine/FileJudge.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"

#include <QString>
#include <QStringList>

#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// What the assistant has said about files, and what it has still to be asked. A rule run looks
/// answers up and never waits for a model; the resolver takes the queued work, asks, and records.
/// Any thread.
class DobbinJudge final : public FileJudge {
public:
    /// Work handed to the resolver. It owes an answer or a failure for each item: until then the
    /// file counts as waiting and is not queued again.
    struct Pending {
        std::vector<VerdictRequest> verdicts;
        std::vector<FileKey> names;
    };

    DobbinJudge(const FileSystem& fileSystem, const Clock& clock)
        : fileSystem_(fileSystem), clock_(clock) {}

    /// `unknown` for a file that can't be looked at, and for one whose question failed less than
    /// ten minutes ago; otherwise an unknown question is queued.
    [[nodiscard]] Verdict verdict(const std::string& path, const QString& question) override;
    [[nodiscard]] std::optional<QString> smartName(const std::string& path) override;
    void fileMoved(const std::string& from, const FileStatus& status,
                   const std::string& to) override;
    [[nodiscard]] bool isWaiting(const std::string& path) override;

    // What is known already; queues nothing.
    [[nodiscard]] Verdict knownVerdict(const std::string& path, const QString& question) const;
    /// Of a file that was of this status when it lay at the path.
    [[nodiscard]] Verdict knownVerdict(const std::string& path, const FileStatus& status,
                                       const QString& question) const;
    [[nodiscard]] std::optional<QString> knownName(const std::string& path) const;

    [[nodiscard]] bool hasPending() const;
    [[nodiscard]] Pending takePending(std::size_t maxVerdicts, std::size_t maxNames);

    void recordVerdict(const VerdictRequest& request, bool matches);
    void recordName(const FileKey& file, const QString& baseName);
    void recordVerdictFailure(const VerdictRequest& request);
    void recordNameFailure(const FileKey& file);

    /// Forgets every verdict and name, so that another model is asked anew.
    void clearAnswers();

private:
    [[nodiscard]] std::optional<FileKey> keyOf(const std::string& path) const;
    void closeVerdict(const FileKey& file);

    const FileSystem& fileSystem_;
    const Clock& clock_;

    mutable std::mutex lock_; ///< guards all below; never held across a look at the disk
    AnswerCache<VerdictRequest, bool> verdicts_;
    AnswerCache<FileKey, QString> names_;
    std::map<FileKey, QStringList> answered_;            ///< the questions with a verdict, by file
    std::map<FileKey, std::size_t> outstandingVerdicts_; ///< how many questions each file waits for
};

} // namespace quillon
