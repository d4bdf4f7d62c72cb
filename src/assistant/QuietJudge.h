#pragma once

#include "engine/FileJudge.h"

#include <mutex>
#include <set>
#include <string>

namespace quillon {

class DobbinJudge;

/// Answers what the judge knows, and queues nothing: for those who only want to look. A file that
/// the judge would have to ask about counts as waiting. Any thread.
class QuietJudge final : public FileJudge {
public:
    /// Borrows the judge.
    explicit QuietJudge(const DobbinJudge& judge) : judge_(judge) {}

    [[nodiscard]] Verdict verdict(const std::string& path, const QString& question) override;
    [[nodiscard]] std::optional<QString> smartName(const std::string& path) override;
    void fileMoved(const std::string& from, const FileStatus& status,
                   const std::string& to) override;
    [[nodiscard]] bool isWaiting(const std::string& path) override;

private:
    void wait(const std::string& path);

    const DobbinJudge& judge_;
    std::mutex lock_;
    std::set<std::string> waiting_;
};

} // namespace quillon
