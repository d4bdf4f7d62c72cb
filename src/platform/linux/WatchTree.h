#pragma once

#include "platform/linux/InotifyQueue.h"

#include <ctime>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillon {

/// The watched folders of one tree: the root and every visible folder beneath it. Links are not
/// followed. One thread.
class WatchTree {
public:
    /// Takes over one hold of the root's watch, and lets go of all of them in the end.
    WatchTree(InotifyQueue& queue, std::string root, int rootWatch);
    ~WatchTree();
    WatchTree(const WatchTree&) = delete;
    WatchTree& operator=(const WatchTree&) = delete;

    [[nodiscard]] int rootWatch() const { return top_.watch; }

    /// Makes the watches equal to the folders that are there. Returns 0, or the errno value when
    /// there can be no more watches; folders that can't be read are left out.
    [[nodiscard]] int scan() { return scan(top_); }

    /// The latest change of a folder's entries that the scans have seen.
    [[nodiscard]] timespec latestChange() const { return latestChange_; }

    struct Outcome {
        bool isChange = false;   ///< something that people can see
        bool isRootGone = false; ///< the root is no longer at its path
        int error = 0;           ///< an errno value: there can be no more watches
    };
    /// Follows what a message says. Those about other trees say nothing here.
    [[nodiscard]] Outcome handle(const InotifyEvent& event);

private:
    struct Folder {
        std::string name;
        Folder* parent = nullptr;
        int watch = -1;
        std::map<std::string, std::unique_ptr<Folder>, std::less<>> folders = {};

        [[nodiscard]] bool isWithin(const Folder& other) const;
    };

    struct Addition {
        Folder* folder = nullptr; ///< null when there is none to watch
        bool isNew = false;
        int error = 0; ///< as that of scan()
    };

    [[nodiscard]] int scan(Folder& folder);
    [[nodiscard]] Addition add(Folder& parent, const std::string& name);
    [[nodiscard]] std::vector<std::string> visibleFolders(const Folder& folder);
    void drop(Folder& parent, std::string_view name);
    void release(Folder& folder);
    [[nodiscard]] std::string path(const Folder& folder) const;

    InotifyQueue& queue_;
    std::string root_;
    Folder top_;
    std::unordered_map<int, Folder*> byWatch_;
    timespec latestChange_ = {};
};

} // namespace quillon
