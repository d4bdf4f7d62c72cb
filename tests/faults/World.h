#pragma once

#include "faults/Scenario.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon::testing {

/// Two folders on different file systems where that can be had, for as long as the process lives.
class Ground {
public:
    static Ground& instance();
    ~Ground();

    /// For whatever is in nobody's way.
    [[nodiscard]] const std::string& base() const { return base_; }
    [[nodiscard]] const std::string& near() const { return near_; }
    /// Absent where this machine offers no second file system.
    [[nodiscard]] const std::optional<std::string>& far() const { return far_; }
    /// Whether each is the top of a mount that is ours alone, with a trash of its own.
    [[nodiscard]] bool ownsMounts() const { return ownsMounts_; }

    /// New file systems, empty, with a folder each; absent where the machine does not let us.
    [[nodiscard]] std::optional<std::string> mountTmpfs(const std::string& options);
    [[nodiscard]] std::optional<std::string> mountExt4(std::size_t megabytes);

private:
    Ground();
    void findFar();

    std::string base_;
    std::string near_;
    std::optional<std::string> far_;
    std::vector<std::string> mounts_;
    bool mayMount_ = false;
    bool ownsMounts_ = false;
};

/// Why the scenario can't be staged here; absent where it can.
[[nodiscard]] std::optional<std::string> missingFor(const Scenario& scenario);

struct Thing {
    std::string path;
    Law law = Law::moves;
    bool contentsOnly = false;
    /// The last is what it is now. Earlier ones were true before somebody changed it.
    std::vector<DiskTree> versions;

    /// Itself or, of a folder, the file in it with which somebody else meddles.
    [[nodiscard]] std::string changingFile() const;
};

/// Fresh folders and files for one run of an operation, gone with the object.
class World {
public:
    explicit World(const Scenario& scenario);
    /// Between folders that are there already.
    World(const Scenario& scenario, Places places);
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    [[nodiscard]] DiskState read() const { return readDisk(roots_); }
    [[nodiscard]] bool mayAppear(const std::string& folder) const;

    /// Another program's doings between two system calls of the operation.
    void createFile(const std::string& path);
    void createDanglingLink(const std::string& path);
    /// Of at least 40,000 bytes the size stays, and only the date tells.
    void overwrite(Thing& thing);
    void replace(Thing& thing);

    Places places;
    std::string wanted;
    std::vector<Thing> things;
    DiskState before;
    bool crossesDevices = false;

private:
    void fill(const Scenario& scenario);

    std::vector<std::string> roots_;
    std::vector<std::string> madeFolders_;
};

[[nodiscard]] DiskItem sampleFile(const std::string& text, std::size_t size);

} // namespace quillon::testing
