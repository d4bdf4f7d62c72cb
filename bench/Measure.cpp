// Holds quillon against the floor program in the same run: the two take turns on folders made
// alike, medians are compared, and the table says where a figure is over its limit.
//   measure QUILLON FLOOR RULES

#include "ChildRun.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quillon::bench {
namespace {

namespace fs = std::filesystem;

constexpr int fileCount = 100'000;
constexpr int movedCount = fileCount / 10;
constexpr int turns = 9;
constexpr int startTurns = 41;

struct Programs {
    std::string quillon;
    std::string floor;
    std::string rules;
};

[[noreturn]] void fail(const std::string& what) {
    std::fprintf(stderr, "measure: %s\n", what.c_str());
    std::exit(1);
}

/// A temporary home folder for every program run, removed at the end.
class Place {
public:
    Place() {
        const char* base = std::getenv("TMPDIR");
        std::string pattern = std::string(base ? base : "/var/tmp") + "/quillon-bench.XXXXXX";
        if (!mkdtemp(pattern.data()))
            fail("no temporary folder at " + pattern);
        root_ = pattern;
        for (const char* name :
             {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            setenv(name, home().c_str(), 1);
        empty();
    }
    ~Place() {
        std::error_code ignored;
        fs::remove_all(root_, ignored);
    }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    void empty() const {
        fs::remove_all(home());
        fs::create_directory(home());
        fs::permissions(home(), fs::perms::owner_all);
    }
    [[nodiscard]] fs::path home() const { return root_ / "home"; }
    [[nodiscard]] std::string folder() const { return home() / "Downloads"; }
    [[nodiscard]] std::string sorted() const { return home() / "Sorted"; }

private:
    fs::path root_;
};

ChildRun mustRun(const std::vector<std::string>& command) {
    const ChildRun run = runChild(command);
    if (run.exitCode != 0)
        fail(command[0] + " " + command[1] + " ended with " + std::to_string(run.exitCode));
    return run;
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

struct Series {
    std::vector<double> milliseconds;
    long peakKilobytes = 0;

    void add(const ChildRun& run) {
        milliseconds.push_back(run.milliseconds);
        peakKilobytes = std::max(peakKilobytes, run.peakKilobytes);
    }
};

struct Pair {
    Series floor;
    Series quillon;

    [[nodiscard]] double ratio() const {
        return median(quillon.milliseconds) / median(floor.milliseconds);
    }
};

void makeFolder(const Programs& programs, const Place& place) {
    place.empty();
    mustRun({programs.floor, "make", place.folder(), std::to_string(fileCount)});
}

Pair measurePreview(const Programs& programs, const Place& place) {
    makeFolder(programs, place);
    const std::vector<std::string> floor{programs.floor, "list", place.folder()};
    const std::vector<std::string> quillon{programs.quillon, "preview", place.folder(), "--rules",
                                           programs.rules};
    mustRun(floor);
    mustRun(quillon);
    Pair pair;
    for (int turn = 0; turn < turns; ++turn) {
        pair.floor.add(mustRun(floor));
        pair.quillon.add(mustRun(quillon));
    }
    return pair;
}

void checkMoved(const Place& place) {
    const auto moved = std::distance(fs::directory_iterator(place.sorted()), {});
    if (moved != movedCount)
        fail(std::to_string(moved) + " files were moved, not " + std::to_string(movedCount));
}

Pair measureTidy(const Programs& programs, const Place& place) {
    Pair pair;
    for (int turn = 0; turn < turns; ++turn) {
        makeFolder(programs, place);
        pair.floor.add(mustRun({programs.floor, "move", place.folder(), place.sorted()}));
        checkMoved(place);
        makeFolder(programs, place);
        pair.quillon.add(
            mustRun({programs.quillon, "tidy", place.folder(), "--rules", programs.rules}));
        checkMoved(place);
    }
    return pair;
}

Series measureStart(const Programs& programs) {
    Series series;
    for (int turn = 0; turn < startTurns; ++turn)
        series.add(mustRun({programs.quillon, "--version"}));
    return series;
}

/// One row of the table; true when the figure is within its limit.
bool row(const char* work, const std::string& floor, const std::string& quillon, double figure,
         double limit, const char* unit) {
    const bool held = figure <= limit;
    std::printf("| %-34s | %8s | %8s | %7.2f %-2s | %6.0f %-2s | %-4s |\n", work, floor.c_str(),
                quillon.c_str(), figure, unit, limit, unit, held ? "yes" : "NO");
    return held;
}

std::string inMilliseconds(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f ms", value);
    return text;
}

bool ratioRow(const char* work, const Pair& pair) {
    return row(work, inMilliseconds(median(pair.floor.milliseconds)),
               inMilliseconds(median(pair.quillon.milliseconds)), pair.ratio(), 2, "x");
}

bool printTable(const Pair& preview, const Pair& tidy, const Series& start) {
    constexpr double kilobytesPerMegabyte = 1000.0 * 1000.0 / 1024.0;
    const auto megabytes = [](const Series& series) {
        return static_cast<double>(series.peakKilobytes) / kilobytesPerMegabyte;
    };
    std::printf("| %-34s | %8s | %8s | %10s | %9s | %-4s |\n", "work", "floor", "quillon", "figure",
                "limit", "held");
    std::printf("|---|---|---|---|---|---|\n");
    bool held = ratioRow("preview, 100,000 files, 20 rules", preview);
    held &= ratioRow("tidy moving 10,000 of 100,000", tidy);
    held &= row("peak memory of that preview", "", "", megabytes(preview.quillon), 100, "MB");
    held &= row("peak memory of that tidy", "", "", megabytes(tidy.quillon), 100, "MB");
    held &= row("quillon --version", "", "", median(start.milliseconds), 15, "ms");
    return held;
}

} // namespace
} // namespace quillon::bench

int main(int argc, char** argv) {
    using namespace quillon::bench;
    if (argc != 4) {
        std::fprintf(stderr, "usage: measure QUILLON FLOOR RULES\n");
        return 2;
    }
    const Programs programs{.quillon = argv[1], .floor = argv[2], .rules = argv[3]};
    const Place place;
    const Series start = measureStart(programs);
    const Pair preview = measurePreview(programs, place);
    const Pair tidy = measureTidy(programs, place);
    return printTable(preview, tidy, start) ? 0 : 1;
}
