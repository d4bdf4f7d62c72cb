// Holds quillon against the floor program in the same run: the two take turns on folders made
// alike, medians are compared, and the table says where a figure is over its limit.
//   measure QUILLON FLOOR RULES HOME      HOME is an empty folder

#include "ChildRun.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
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

/// The home folder of every program run.
class Place {
public:
    explicit Place(fs::path home) : home_(std::move(home)) {
        for (const char* name :
             {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            setenv(name, home_.c_str(), 1);
    }

    [[nodiscard]] std::string folder() const { return home_ / "Downloads"; }
    [[nodiscard]] std::string sorted() const { return home_ / "Sorted"; }
    /// Removes what quillon remembers of earlier turns.
    void forget() const { fs::remove_all(home_ / "Quillon"); }

private:
    fs::path home_;
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

Pair measurePreview(const Programs& programs, const Place& place) {
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

/// Runs a command that moves a tenth of the files, checks that it did, and puts them back.
ChildRun moveAndReturn(const Programs& programs, const Place& place,
                       const std::vector<std::string>& command) {
    const ChildRun run = mustRun(command);
    const auto moved = std::distance(fs::directory_iterator(place.sorted()), {});
    if (moved != movedCount)
        fail(std::to_string(moved) + " files were moved, not " + std::to_string(movedCount));
    mustRun({programs.floor, "back", place.folder(), place.sorted()});
    place.forget();
    return run;
}

Pair measureTidy(const Programs& programs, const Place& place) {
    const std::vector<std::string> floor{programs.floor, "move", place.folder(), place.sorted()};
    const std::vector<std::string> quillon{programs.quillon, "tidy", place.folder(), "--rules",
                                           programs.rules};
    Pair pair;
    for (int turn = 0; turn < turns; ++turn) {
        pair.floor.add(moveAndReturn(programs, place, floor));
        pair.quillon.add(moveAndReturn(programs, place, quillon));
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
    std::printf("| %-34s | %9s | %9s | %7.2f %-2s | %6.0f %-2s | %-4s |\n", work, floor.c_str(),
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

double peakMegabytes(const Series& series) {
    return static_cast<double>(series.peakKilobytes) * 1024 / 1e6;
}

/// Prints each row as soon as it is known; true when every figure is within its limit.
bool measureAll(const Programs& programs, const Place& place) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    std::printf("| %-34s | %9s | %9s | %10s | %9s | %-4s |\n", "work", "floor", "quillon", "figure",
                "limit", "held");
    std::printf("|---|---|---|---|---|---|\n");
    const Series start = measureStart(programs);
    bool held = row("quillon --version", "", "", median(start.milliseconds), 15, "ms");

    mustRun({programs.floor, "make", place.folder(), std::to_string(fileCount)});
    const Pair preview = measurePreview(programs, place);
    held &= ratioRow("preview, 100,000 files, 20 rules", preview);
    held &= row("peak memory of that preview", "", "", peakMegabytes(preview.quillon), 100, "MB");

    const Pair tidy = measureTidy(programs, place);
    held &= ratioRow("tidy moving 10,000 of 100,000", tidy);
    held &= row("peak memory of that tidy", "", "", peakMegabytes(tidy.quillon), 100, "MB");
    return held;
}

} // namespace
} // namespace quillon::bench

int main(int argc, char** argv) {
    using namespace quillon::bench;
    if (argc != 5) {
        std::fprintf(stderr, "usage: measure QUILLON FLOOR RULES HOME\n");
        return 2;
    }
    return measureAll({.quillon = argv[1], .floor = argv[2], .rules = argv[3]}, Place(argv[4])) ? 0
                                                                                                : 1;
}
