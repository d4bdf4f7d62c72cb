#include "platform/linux/LinuxUserFolders.h"

#include <gtest/gtest.h>

#include <map>
#include <pwd.h>
#include <unistd.h>

namespace quillon::testing {

namespace {

TEST(UserFoldersTest, FollowTheBaseDirectoryRules) {
    const passwd* const user = ::getpwuid(::getuid());
    const std::string listed = user != nullptr ? user->pw_dir : "/";
    const struct {
        std::map<std::string, std::string> variables;
        UserFolders expected;
    } cases[] = {
        {{{"HOME", "/home/ann"}},
         {"/home/ann", "/home/ann/.local/share/Quillon", "/home/ann/.local/share/Quillon"}},
        {{{"HOME", "/home/ann//"}, {"XDG_DATA_HOME", "/data/"}, {"XDG_RUNTIME_DIR", "/run/user/7"}},
         {"/home/ann", "/data/Quillon", "/run/user/7"}},
        {{{"HOME", "/home/ann"}, {"XDG_DATA_HOME", "data"}, {"XDG_RUNTIME_DIR", ""}},
         {"/home/ann", "/home/ann/.local/share/Quillon", "/home/ann/.local/share/Quillon"}},
        {{{"HOME", "/"}, {"XDG_RUNTIME_DIR", "run"}},
         {"/", "/.local/share/Quillon", "/.local/share/Quillon"}},
        {{{"HOME", "ann"}, {"XDG_DATA_HOME", "/data"}}, {listed, "/data/Quillon", "/data/Quillon"}},
        {{{"XDG_DATA_HOME", "/data"}}, {listed, "/data/Quillon", "/data/Quillon"}},
    };
    for (const auto& [variables, expected] : cases) {
        const UserFolders folders =
            userFolders([&](const char* name) -> std::optional<std::string> {
                const auto found = variables.find(name);
                return found == variables.end() ? std::nullopt : std::optional(found->second);
            });
        EXPECT_EQ(folders.home, expected.home);
        EXPECT_EQ(folders.data, expected.data);
        EXPECT_EQ(folders.runtime, expected.runtime);
    }
}

} // namespace

} // namespace quillon::testing
