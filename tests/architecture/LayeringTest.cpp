#include "architecture/Layering.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

std::vector<SourceFile> sourceTree(const fs::path& root) {
    std::vector<SourceFile> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
        if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp")
            continue;
        std::ifstream in(entry.path());
        files.push_back({.path = fs::relative(entry.path(), root).generic_string(),
                         .text = std::string(std::istreambuf_iterator<char>(in), {})});
    }
    return files;
}

TEST(Layering, theTreeKeepsToItsLayers) {
    const std::vector<SourceFile> files = sourceTree(fs::path(QUILLON_SOURCE_DIR) / "src");
    ASSERT_GT(files.size(), 20u);
    EXPECT_THAT(layeringFaults(files), testing::IsEmpty());
}

TEST(Layering, findsEachKindOfFault) {
    struct Case {
        const char* path;
        const char* text;
        const char* fault; ///< "" means that the file is fine
    };
    const Case cases[] = {
        {"engine/A.cpp", "#include \"model/M.h\"\n#include <QString>\n", ""},
        {"engine/A.cpp", "#include \"engine/E.h\"\n#include \"platform/P.h\"\n", ""},
        {"cli/A.cpp", "#include \"store/S.h\"\n", ""},
        {"service/A.cpp", "#include \"platform/linux/L.h\"\n", ""},
        {"platform/linux/A.cpp", "#include <sys/stat.h>\n#ifdef X\n#include \"platform/P.h\"\n",
         ""},
        {"store/A.h", "#include <QObject>\n", ""},
        {"engine/A.cpp", "// #include \"store/S.h\" would point upward\n", ""},

        {"engine/A.cpp", "#include \"store/S.h\"\n", "engine/A.cpp:1: includes upward: store/S.h"},
        {"model/A.h", "\n  #  include \"engine/E.h\"\n",
         "model/A.h:2: includes upward: engine/E.h"},
        {"platform/A.h", "#include \"model/M.h\"\n", "platform/A.h:1: includes upward: model/M.h"},
        {"platform/linux/A.cpp", "#include \"model/M.h\"\n",
         "platform/linux/A.cpp:1: includes upward: model/M.h"},
        {"store/A.cpp", "#include \"platform/linux/L.h\"\n",
         "store/A.cpp:1: only service may include platform/linux: platform/linux/L.h"},
        {"platform/A.cpp", "#include \"platform/linux/L.h\"\n",
         "platform/A.cpp:1: only service may include platform/linux: platform/linux/L.h"},
        {"model/A.cpp", "#include \"model/Gone.h\"\n",
         "model/A.cpp:1: includes \"model/Gone.h\", which is not there"},
        {"model/A.cpp", "#include <model/M.h>\n",
         "model/A.cpp:1: includes our own model/M.h in angle brackets"},
        {"store/A.cpp", "#include <unistd.h>\n",
         "store/A.cpp:1: operating-system header outside of platform/linux: unistd.h"},
        {"cli/A.cpp", "#include <sys/stat.h>\n",
         "cli/A.cpp:1: operating-system header outside of platform/linux: sys/stat.h"},
        {"engine/A.cpp", "#ifdef __linux__\n",
         "engine/A.cpp:1: conditional code outside of platform/linux"},
        {"engine/A.h", "class A : public QObject {\n", "engine/A.h:1: QObject below store"},
        {"stray/A.cpp", "", "stray/A.cpp:0: is in no layer"},
    };
    for (const Case& c : cases) {
        const std::vector<SourceFile> files{
            {c.path, c.text},  {"store/S.h", ""},    {"engine/E.h", ""},
            {"model/M.h", ""}, {"platform/P.h", ""}, {"platform/linux/L.h", ""},
        };
        const std::vector<std::string> faults = layeringFaults(files);
        SCOPED_TRACE(std::string(c.path) + ": " + c.text);
        if (*c.fault == '\0')
            EXPECT_THAT(faults, testing::IsEmpty());
        else
            EXPECT_THAT(faults, testing::ElementsAre(c.fault));
    }
}

} // namespace
} // namespace quillon::test
