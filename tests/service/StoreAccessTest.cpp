#include "service/StoreAccess.h"

#include "support/AppStoreBench.h"
#include "support/EventLoopApplication.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

TEST(StoreAccess, showsHowFarWorkIsOnTheThreadThatWaitsForIt) {
    const EventLoopApplication application;
    AppStoreBench bench;
    const QUuid folderID = bench.addFolder("in");
    bench.disk.machine.write("in/a.pdf", "a");
    bench.addRule(bench.mover(u"pdf"_s, "out"), folderID);
    const auto entries = bench.store->recentLogs();
    ASSERT_EQ(entries.size(), 1U);
    const auto here = std::this_thread::get_id();
    std::atomic<bool> isShownHere = false;
    auto undone = std::async(std::launch::async, [&] {
        return StoreAccess(*bench.store)
            .undo({entries.front().id},
                  [&](std::size_t, std::size_t) {
                      isShownHere = isShownHere || std::this_thread::get_id() == here;
                  },
                  {});
    });
    while (undone.wait_for(1ms) != std::future_status::ready) {
        QCoreApplication::processEvents();
        bench.background.finish();
    }
    EXPECT_EQ(undone.get().outcomes.size(), 1U);
    EXPECT_FALSE(isShownHere) << "the background work must not wait for a terminal";
}

} // namespace
} // namespace quillon::testing
