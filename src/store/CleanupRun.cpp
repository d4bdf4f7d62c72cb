#include "store/CleanupRun.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct CleanupRun {
    AppStore::Cleanup cleanup;
    std::shared_ptr<StoreSession> session;
    std::unique_ptr<JournalledRun> journal;
    std::optional<RuleEngine> engine;
    AppStore::CleanupReport report;

    /// In the background.
    void perform() {
        report.run = engine->execute(cleanup.files, cleanup.rules, cleanup.folder, {},
                                     cleanup.batchID, *journal, cleanup.progress);
    }
};

} // namespace

void startCleanup(StoreCore& core, AppStore::Cleanup cleanup,
                  const std::function<void(AppStore::CleanupReport)>& done) {
    const auto run = std::make_shared<CleanupRun>();
    run->cleanup = std::move(cleanup);
    const auto takeIn = [&core, run, done](const std::function<void()>& ended) {
        core.addLogs(run->report.run.entries);
        run->journal.reset();
        if (!run->report.run.entries.empty() || core.session->journal().awaitsSave())
            if (const auto saved = core.save(); !saved)
                run->report.unsaved = saved.error();
        done(std::move(run->report));
        ended();
    };
    core.addWork(run->cleanup.folder.path,
                 {.start =
                      [&core, run, takeIn](const std::function<void()>& ended) {
                          EngineSettings settings = run->cleanup.settings;
                          settings.mayContinue = core.unlessHurried(settings.mayContinue);
                          run->session = core.session;
                          run->journal = core.session->journal().beginRun();
                          run->engine.emplace(core.around.makeEngine(std::move(settings)));
                          core.inBackground([run] { run->perform(); },
                                            [takeIn, ended] { takeIn(ended); });
                      },
                  .drop =
                      [run, done] {
                          run->report.run.stopped =
                              Error{ErrorKind::unsupported, u"Quillon takes on no more work"_s};
                          done(std::move(run->report));
                      }});
}

} // namespace quillon
