#include "service/StoreAccess.h"

#include "service/Signal.h"

#include <QMetaObject>
#include <QThread>

#include <atomic>
#include <memory>

namespace quillon {
namespace {

/// How long runs that are to end early may take to tell what they have done.
constexpr std::chrono::seconds otherEndGrace{2};

/// What a waiting command and the store's thread share. It outlives a command that stops waiting.
struct Waiting {
    Signal signal;
    std::vector<RunReport> reports; ///< on the store's thread, as all below
    QStringList problems;
    QMetaObject::Connection listening;
    QMetaObject::Connection answers;
};

/// How far work on another thread is. That thread only counts: showing it may take as long as
/// somebody's terminal likes, and so is for the thread that waits.
class Advance {
public:
    [[nodiscard]] Progress counter() {
        return [this](std::size_t done, std::size_t total) {
            total_ = total;
            done_ = done;
        };
    }
    void showUntil(Signal& finished, const Progress& progress) {
        finished.wait([&] {
            if (progress)
                progress(done_, total_);
            return true;
        });
    }

private:
    std::atomic<std::size_t> done_ = 0;
    std::atomic<std::size_t> total_ = 0;
};

} // namespace

void StoreAccess::onStoreThread(const std::function<void()>& work) const {
    const bool isHere = store_->thread() == QThread::currentThread();
    QMetaObject::invokeMethod(store_, work,
                              isHere ? Qt::DirectConnection : Qt::BlockingQueuedConnection);
}

std::vector<RunReport> StoreAccess::runsOf(const std::function<void(AppStore&)>& change,
                                           const std::function<bool()>& mayContinue) const {
    const auto waiting = std::make_shared<Waiting>();
    std::uint64_t before = 0;
    std::uint64_t last = 0;
    onStoreThread([&] {
        before = store_->lastRunNumber();
        waiting->listening = QObject::connect(store_, &AppStore::runFinished, store_,
                                              [waiting, before](const RunReport& report) {
                                                  if (report.number > before)
                                                      waiting->reports.push_back(report);
                                              });
        change(*store_);
        last = store_->lastRunNumber();
        store_->afterRuns(last, [waiting] {
            QObject::disconnect(waiting->listening);
            waiting->signal.raise();
        });
    });
    if (!waiting->signal.wait(mayContinue)) {
        onStoreThread([&] { store_->endRunsEarly(before + 1, last); });
        const auto end = std::chrono::steady_clock::now() + otherEndGrace;
        waiting->signal.wait([end] { return std::chrono::steady_clock::now() < end; });
    }
    std::vector<RunReport> reports;
    onStoreThread([&] {
        QObject::disconnect(waiting->listening);
        reports = std::move(waiting->reports);
    });
    return reports;
}

StoreAccess::Settling StoreAccess::untilSettled(const QUuid& folderID,
                                                const std::function<bool()>& mayContinue) const {
    const auto waiting = std::make_shared<Waiting>();
    const auto look = [waiting, folderID, store = store_] {
        if (!store->isUnsettled(folderID))
            waiting->signal.raise();
    };
    onStoreThread([&] {
        store_->askQuestions();
        waiting->listening = QObject::connect(store_, &AppStore::runFinished, store_,
                                              [waiting, folderID, look](const RunReport& report) {
                                                  if (report.folderID != folderID)
                                                      return;
                                                  waiting->reports.push_back(report);
                                                  look();
                                              });
        waiting->answers = QObject::connect(store_, &AppStore::questionsResolved, store_,
                                            [waiting, look](const QuestionsOutcome& outcome) {
                                                waiting->problems += outcome.problems;
                                                look();
                                            });
        look();
    });
    waiting->signal.wait(mayContinue);
    Settling settling;
    onStoreThread([&] {
        QObject::disconnect(waiting->listening);
        QObject::disconnect(waiting->answers);
        settling.reports = std::move(waiting->reports);
        settling.problems = std::move(waiting->problems);
    });
    settling.problems.removeDuplicates();
    return settling;
}

AppStore::CleanupReport StoreAccess::runCleanup(AppStore::Cleanup cleanup) const {
    Signal finished;
    Advance advance;
    const Progress progress = std::exchange(cleanup.progress, advance.counter());
    AppStore::CleanupReport result;
    onStoreThread([&] {
        store_->runCleanup(std::move(cleanup), [&](AppStore::CleanupReport report) {
            result = std::move(report);
            finished.raise();
        });
    });
    advance.showUntil(finished, progress);
    return result;
}

AppStore::UndoReport StoreAccess::undo(std::vector<QUuid> entryIDs, const Progress& progress,
                                       std::function<bool()> mayContinue) const {
    Signal finished;
    Advance advance;
    AppStore::UndoReport result;
    onStoreThread([&] {
        store_->undo(
            std::move(entryIDs),
            [&](AppStore::UndoReport report) {
                result = std::move(report);
                finished.raise();
            },
            advance.counter(), std::move(mayContinue));
    });
    advance.showUntil(finished, progress);
    return result;
}

} // namespace quillon
