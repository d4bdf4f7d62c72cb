#include "store/Schedules.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace std::chrono_literals;

WatchedFolder folderWith(TidyTiming timing, std::vector<Rule> rules = {}) {
    WatchedFolder folder;
    folder.setTiming(timing);
    folder.rules = std::move(rules);
    return folder;
}

TEST(Schedules, SayWhenAFolderIsDue) {
    Rule dated;
    dated.conditions[0].attribute = ConditionAttribute::lastOpened;
    Rule off = dated;
    off.isEnabled = false;
    const struct {
        WatchedFolder folder;
        std::optional<std::chrono::seconds> interval;
    } rows[] = {
        {folderWith(TidyTiming::live, {Rule(), off}), std::nullopt},
        {folderWith(TidyTiming::live, {Rule(), dated}), 86'400s},
        {folderWith(TidyTiming::manual, {dated}), std::nullopt},
        {folderWith(TidyTiming::every15), 900s},
        {folderWith(TidyTiming::hourly, {dated}), 3'600s},
        {folderWith(TidyTiming::every6h), 21'600s},
        {folderWith(TidyTiming::daily), 86'400s},
    };
    const Timestamp now{500'000h};
    for (const auto& row : rows) {
        SCOPED_TRACE(rawValue(row.folder.timing()).toStdString());
        EXPECT_EQ(tidyInterval(row.folder), row.interval);
        const auto isDue = [&](const QHash<QUuid, Timestamp>& lastRun) {
            return !dueFolders({row.folder}, lastRun, now).empty();
        };
        EXPECT_EQ(isDue({}), row.interval.has_value());
        if (!row.interval)
            continue;
        EXPECT_TRUE(isDue({{row.folder.id, now - *row.interval}}));
        EXPECT_FALSE(isDue({{row.folder.id, now - *row.interval + 1ns}}));
        EXPECT_TRUE(isDue({{row.folder.id, now + 1s}})) << "the clock was set back";
    }
}

} // namespace
} // namespace quillon::testing
