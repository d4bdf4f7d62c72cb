#pragma once

#include "platform/FileNames.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon::testing {

/// A folder of its own for one test, removed with it, and the few verbs that tests need in it.
/// Paths are relative to it.
class ScratchFolder {
public:
    explicit ScratchFolder(const std::string& parent = std::filesystem::temp_directory_path()) {
        root_ = joinPath(parent, "quillon-test-XXXXXX");
        EXPECT_NE(::mkdtemp(root_.data()), nullptr);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// On another device than the usual temporary folder; null where this machine has none.
    static std::unique_ptr<ScratchFolder> onOtherDevice() {
        struct stat usual = {};
        struct stat other = {};
        const std::string temporary = std::filesystem::temp_directory_path();
        const bool isOther = ::stat(temporary.c_str(), &usual) == 0 &&
                             ::stat("/dev/shm", &other) == 0 && usual.st_dev != other.st_dev &&
                             ::access("/dev/shm", W_OK) == 0;
        return isOther ? std::make_unique<ScratchFolder>("/dev/shm") : nullptr;
    }

    [[nodiscard]] const std::string& root() const { return root_; }
    [[nodiscard]] std::string path(const std::string& name) const { return joinPath(root_, name); }

    std::string write(const std::string& name, const std::string& contents) const {
        std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
        std::ofstream(path(name), std::ios::binary) << contents;
        return path(name);
    }
    std::string makeFolder(const std::string& name) const {
        std::filesystem::create_directories(path(name));
        return path(name);
    }
    std::string link(const std::string& name, const std::string& target) const {
        std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
        std::filesystem::create_symlink(target, path(name));
        return path(name);
    }
    std::string makePipe(const std::string& name) const {
        EXPECT_EQ(::mkfifo(path(name).c_str(), 0600), 0);
        return path(name);
    }

    [[nodiscard]] std::string read(const std::string& name) const {
        std::ostringstream contents;
        contents << std::ifstream(path(name), std::ios::binary).rdbuf();
        return contents.str();
    }
    [[nodiscard]] bool has(const std::string& name) const {
        return std::filesystem::exists(std::filesystem::symlink_status(path(name)));
    }

    /// Everything below, hidden names too: what a file holds, "-> target" of a link, "/" for a
    /// folder,
    /// "!" for anything else.
    [[nodiscard]] std::map<std::string, std::string> everything() const {
        std::map<std::string, std::string> found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root_)) {
            const std::string name = entry.path().string().substr(root_.size() + 1);
            if (entry.is_symlink())
                found[name] = "-> " + std::filesystem::read_symlink(entry.path()).string();
            else if (entry.is_directory())
                found[name] = "/";
            else
                found[name] = entry.is_regular_file() ? read(name) : "!";
        }
        return found;
    }

private:
    std::string root_;
};

/// Gives up the rights of root, where the test has them, until the end of the scope.
class WithoutPrivileges {
public:
    WithoutPrivileges() {
        if (::geteuid() == 0) {
            EXPECT_EQ(::seteuid(65534), 0);
        }
    }
    ~WithoutPrivileges() {
        if (::getuid() == 0) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;
};

} // namespace quillon::testing
