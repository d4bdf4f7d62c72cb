#pragma once

#include "faults/DiskState.h"
#include "faults/Report.h"

#include <functional>
#include <string>
#include <vector>

namespace quillon::testing {

/// The folders an operation works between, absolute.
struct Places {
    std::string in, out, trash;
    std::string data; ///< Quillon's own

    /// "out/report.pdf" as an absolute path.
    [[nodiscard]] std::string path(const std::string& name) const;
};

/// What an operation may do to a thing.
enum class Law {
    moves,   ///< it lies in one place, whatever place that is
    copies,  ///< it stays, and something like it may appear elsewhere
    appears, ///< it is not there before; afterwards the whole of it, or nothing
};

struct Subject {
    std::string name; ///< "in/report.pdf"
    DiskTree tree;
    Law law = Law::moves;
    bool contentsOnly = false;   ///< nothing but its contents is promised
    bool hasTrashRecord = false; ///< it lies in a trash to begin with
};

struct Operation {
    std::vector<Subject> subjects;
    std::string wanted;                   ///< the name it tries first: "out/report.pdf"
    std::vector<std::string> madeFolders; ///< those it may leave behind empty: "in/PDFs"
    std::function<Report(const Places&)> run;
    /// What the next start of the program does after this one was killed. Its report is about what
    /// it knows of the interrupted operation; things it doesn't mention are where they were.
    std::function<Report(const Places&)> recover = {};
    /// What is to be so before; nobody is killed in it.
    std::function<void(const Places&)> prepare = {};
    bool isJournalled = false; ///< after recovering, the way back to every moved file is known
};

enum class Devices {
    same,
    outElsewhere, ///< `out` on another file system
    inElsewhere,  ///< `in` on a file system that has its own trash
};

/// A machine less able than this one.
enum class Machine {
    able,
    noExclusiveRename, ///< renameat2 takes no flags, as on old network file systems
    alwaysOtherDevice, ///< renameat2 and link say EXDEV, as between bind mounts
    noKernelCopy,      ///< contents can't be copied inside the kernel
};

struct Scenario {
    std::string name;
    Operation operation;
    Devices devices = Devices::same;
    Machine machine = Machine::able;
    bool wantedIsTaken = false; ///< a file of somebody else's has the wanted name
};

} // namespace quillon::testing
