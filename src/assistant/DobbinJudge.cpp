#include "assistant/DobbinJudge.h"

namespace quillon {
namespace {

/// A folder's date says that something in it has come or gone, and nothing that is told to a model.
FileKey keyFor(const std::string& path, const FileStatus& status) {
    const bool isFolder = status.type == FileType::directory;
    return {
        .path = path, .size = status.size, .modified = isFolder ? Timestamp() : status.modified};
}

} // namespace

Verdict DobbinJudge::verdict(const std::string& path, const QString& question) {
    const auto file = keyOf(path);
    if (!file)
        return Verdict::unknown;
    const VerdictRequest request{.question = question, .file = *file};
    const Timestamp now = clock_.now();

    const std::scoped_lock guard(lock_);
    if (const auto matches = verdicts_.answer(request))
        return *matches ? Verdict::yes : Verdict::no;
    if (verdicts_.queue(request, now))
        ++outstandingVerdicts_[*file];
    return Verdict::unknown;
}

std::optional<QString> DobbinJudge::smartName(const std::string& path) {
    const auto file = keyOf(path);
    if (!file)
        return std::nullopt;
    const Timestamp now = clock_.now();

    const std::scoped_lock guard(lock_);
    if (auto name = names_.answer(*file))
        return name;
    names_.queue(*file, now);
    return std::nullopt;
}

void DobbinJudge::fileMoved(const std::string& from, const FileStatus& status,
                            const std::string& to) {
    const FileKey before = keyFor(from, status);
    const FileKey after = keyFor(to, status);

    const std::scoped_lock guard(lock_);
    if (const auto name = names_.answer(before))
        names_.record(after, *name);
    const auto questions = answered_.find(before);
    if (questions == answered_.end())
        return;
    for (const QString& question : questions->second)
        if (const auto matches = verdicts_.answer({.question = question, .file = before}))
            verdicts_.record({.question = question, .file = after}, *matches);
    answered_.insert_or_assign(after, questions->second);
}

bool DobbinJudge::isWaiting(const std::string& path) {
    {
        const std::scoped_lock guard(lock_);
        if (outstandingVerdicts_.empty() && !names_.hasOutstanding())
            return false;
    }
    const auto file = keyOf(path);
    const std::scoped_lock guard(lock_);
    return file && (outstandingVerdicts_.contains(*file) || names_.isOutstanding(*file));
}

Verdict DobbinJudge::knownVerdict(const std::string& path, const QString& question) const {
    const auto status = fileSystem_.status(path);
    return status ? knownVerdict(path, *status, question) : Verdict::unknown;
}

Verdict DobbinJudge::knownVerdict(const std::string& path, const FileStatus& status,
                                  const QString& question) const {
    const FileKey file = keyFor(path, status);
    const std::scoped_lock guard(lock_);
    const auto matches = verdicts_.answer({.question = question, .file = file});
    if (!matches)
        return Verdict::unknown;
    return *matches ? Verdict::yes : Verdict::no;
}

std::optional<QString> DobbinJudge::knownName(const std::string& path) const {
    const auto file = keyOf(path);
    const std::scoped_lock guard(lock_);
    return file ? names_.answer(*file) : std::nullopt;
}

bool DobbinJudge::hasPending() const {
    const std::scoped_lock guard(lock_);
    return verdicts_.hasPending() || names_.hasPending();
}

DobbinJudge::Pending DobbinJudge::takePending(std::size_t maxVerdicts, std::size_t maxNames) {
    const std::scoped_lock guard(lock_);
    return {.verdicts = verdicts_.take(maxVerdicts), .names = names_.take(maxNames)};
}

void DobbinJudge::recordVerdict(const VerdictRequest& request, bool matches) {
    const std::scoped_lock guard(lock_);
    if (!verdicts_.answer(request))
        answered_[request.file].append(request.question);
    if (verdicts_.record(request, matches))
        closeVerdict(request.file);
}

void DobbinJudge::recordName(const FileKey& file, const QString& baseName) {
    const std::scoped_lock guard(lock_);
    names_.record(file, baseName);
}

void DobbinJudge::recordVerdictFailure(const VerdictRequest& request) {
    const Timestamp now = clock_.now();
    const std::scoped_lock guard(lock_);
    if (verdicts_.recordFailure(request, now))
        closeVerdict(request.file);
}

void DobbinJudge::recordNameFailure(const FileKey& file) {
    const Timestamp now = clock_.now();
    const std::scoped_lock guard(lock_);
    names_.recordFailure(file, now);
}

void DobbinJudge::clearAnswers() {
    const std::scoped_lock guard(lock_);
    verdicts_.clearAnswers();
    answered_.clear();
    names_.clearAnswers();
}

std::optional<FileKey> DobbinJudge::keyOf(const std::string& path) const {
    const auto status = fileSystem_.status(path);
    if (!status)
        return std::nullopt;
    return keyFor(path, *status);
}

void DobbinJudge::closeVerdict(const FileKey& file) {
    const auto found = outstandingVerdicts_.find(file);
    if (found != outstandingVerdicts_.end() && --found->second == 0)
        outstandingVerdicts_.erase(found);
}

} // namespace quillon
