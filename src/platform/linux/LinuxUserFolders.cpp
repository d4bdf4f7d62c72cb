#include "platform/linux/LinuxUserFolders.h"

#include "platform/FileNames.h"

#include <array>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace quillon {

namespace {

std::optional<std::string> absoluteFolder(const Environment& environment, const char* name) {
    std::optional<std::string> path = environment(name);
    if (!path || !path->starts_with('/')) {
        return std::nullopt;
    }
    while (path->size() > 1 && path->ends_with('/')) {
        path->pop_back();
    }
    return path;
}

std::string homeInUserList() {
    std::array<char, 16 * 1024> buffer;
    passwd record = {};
    passwd* found = nullptr;
    const int error = ::getpwuid_r(::getuid(), &record, buffer.data(), buffer.size(), &found);
    return error == 0 && found && found->pw_dir[0] == '/' ? found->pw_dir : "/";
}

} // namespace

std::optional<std::string> processEnvironment(const char* name) {
    const char* const value = std::getenv(name);
    return value ? std::optional<std::string>(value) : std::nullopt;
}

UserFolders userFolders(const Environment& environment) {
    UserFolders folders;
    folders.home = absoluteFolder(environment, "HOME")
                       .or_else([] { return std::optional(homeInUserList()); })
                       .value();
    const std::string data = absoluteFolder(environment, "XDG_DATA_HOME")
                                 .value_or(joinPath(joinPath(folders.home, ".local"), "share"));
    folders.data = joinPath(data, "Quillon");
    const std::string config =
        absoluteFolder(environment, "XDG_CONFIG_HOME").value_or(joinPath(folders.home, ".config"));
    folders.config = joinPath(config, "Quillon");
    folders.runtime = absoluteFolder(environment, "XDG_RUNTIME_DIR").value_or(folders.data);
    return folders;
}

} // namespace quillon
