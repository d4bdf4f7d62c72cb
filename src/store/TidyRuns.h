#pragma once

#include "store/KnownFiles.h"
#include "store/RunReport.h"
#include "store/SettleRetries.h"
#include "store/StoreCore.h"

#include <atomic>
#include <functional>
#include <map>

namespace quillon {

/// The runs over watched folders: lists and tidies in the background, one run of a folder at a
/// time, and takes the result into the store. On the store's thread.
class TidyRuns {
public:
    /// Borrows both.
    TidyRuns(StoreCore& core, KnownFiles& known);

    /// As AppStore::runRules.
    std::uint64_t request(const QUuid& folderID, RunCause cause);
    [[nodiscard]] std::uint64_t lastNumber() const { return lastNumber_; }
    void afterRuns(std::uint64_t number, std::function<void()> done);
    void endEarly(std::uint64_t first, std::uint64_t last);
    /// Has afterRuns() wait for the folder's files to be known, as for a run.
    void awaitKnown(const QUuid& folderID);

    [[nodiscard]] SettleRetries& retries() { return retries_; }

    /// Now and after every run: hands the questions that wait for the assistant on, and afterwards
    /// tidies the folders whose rules may have been waiting for the answers. One hand-off at a
    /// time.
    void askQuestions();
    /// As AppStore::isUnsettled.
    [[nodiscard]] bool isUnsettled(const QUuid& folderID) const;

private:
    struct Request {
        std::uint64_t number;
        RunCause cause;
    };
    struct Run;

    std::uint64_t takeNumber();
    void start(const QUuid& folderID, const std::function<void()>& ended);
    void takeIn(Run& run);
    void dropRepeated(RunResult& run);
    [[nodiscard]] bool mergeKeys(const Run& run);
    void notify(const Run& run) const;
    void retryLater(const Run& run);
    void finished(std::uint64_t number);
    void resolveQuestions();
    void takeAnswers(const QuestionsOutcome& outcome);

    StoreCore& core_;
    KnownFiles& known_;
    SettleRetries retries_;
    std::uint64_t lastNumber_ = 0;
    std::map<QUuid, Request> waiting_; ///< one a folder that has not begun
    std::set<QUuid> running_;
    /// By number, and whether it is to end after the file that it is at.
    std::map<std::uint64_t, std::shared_ptr<std::atomic<bool>>> unfinished_;
    std::multimap<std::uint64_t, std::function<void()>> afterwards_;
    bool asksQuestions_ = false;
    bool isResolving_ = false;
};

} // namespace quillon
