#include "assistant/QuietJudge.h"

#include "assistant/DobbinJudge.h"

namespace quillon {

Verdict QuietJudge::verdict(const std::string& path, const QString& question) {
    const Verdict known = judge_.knownVerdict(path, question);
    if (known == Verdict::unknown)
        wait(path);
    return known;
}

std::optional<QString> QuietJudge::smartName(const std::string& path) {
    auto known = judge_.knownName(path);
    if (!known)
        wait(path);
    return known;
}

void QuietJudge::fileMoved(const std::string& /*from*/, const FileStatus& /*status*/,
                           const std::string& /*to*/) {}

bool QuietJudge::isWaiting(const std::string& path) {
    const std::scoped_lock guard(lock_);
    return waiting_.contains(path);
}

void QuietJudge::wait(const std::string& path) {
    const std::scoped_lock guard(lock_);
    waiting_.insert(path);
}

} // namespace quillon
