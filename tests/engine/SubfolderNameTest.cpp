#include "engine/SubfolderName.h"

#include "engine/DateFormats.h"
#include "support/FakePlatform.h"
#include "support/SystemTimeZone.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace std::chrono;

TEST(SubfolderName, FollowsTheStrategy) {
    const testing::SystemTimeZone zone("Pacific/Auckland");
    testing::FakePlatform machine;
    KindClassifier kinds(machine.contentTypes);
    DateFormats dates;
    const EngineSettings settings;
    struct Case {
        SortStrategy strategy;
        std::string name;
        FileType type;
        std::string expected;
    };
    using enum FileType;
    const Case cases[] = {
        {SortStrategy::byKind, "a.png", regular, "Images"},
        {SortStrategy::byKind, "a.mp4", regular, "Videos"},
        {SortStrategy::byKind, "a.pdf", regular, "PDFs"},
        {SortStrategy::byKind, "a.txt", regular, "Documents"},
        {SortStrategy::byKind, "a.zip", regular, "Archives"},
        {SortStrategy::byKind, "a.qqq", regular, "Other"},
        {SortStrategy::byKind, "a.png", directory, "Folders"},
        {SortStrategy::byMonth, "a.png", regular, "2024-06"},
        {SortStrategy::byExtension, "a.tar.gz", regular, "GZ"},
        {SortStrategy::byExtension, "straße.groß", regular, "GROSS"},
        {SortStrategy::byExtension, "README", regular, "No Extension"},
        {SortStrategy::byExtension, "a. ", regular, "No Extension"},
        {SortStrategy::byExtension, "a.b\nc", regular, "B C"},
        {SortStrategy::byExtension, "a.txt \n", regular, "TXT"},
        {SortStrategy::byExtension, "a." + std::string(253, 'x'), regular, std::string(253, 'X')},
    };
    for (const Case& c : cases) {
        FileStatus status;
        status.modified = sys_days{2024y / 5 / 31} + 20h;
        status.type = c.type;
        const ActionContext context{.platform = machine.platform,
                                    .kinds = kinds,
                                    .dates = dates,
                                    .settings = settings,
                                    .path = "/work/" + c.name,
                                    .status = status,
                                    .captures = {}};
        EXPECT_EQ(subfolderName(c.strategy, context), c.expected) << c.name;
    }
}

} // namespace
} // namespace quillon
