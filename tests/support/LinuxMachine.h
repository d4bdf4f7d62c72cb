#pragma once

#include "platform/Platform.h"
#include "platform/linux/BsdtarArchives.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxProcesses.h"
#include "platform/linux/LinuxTrash.h"
#include "platform/linux/MimeContentTypes.h"
#include "platform/linux/NextcloudFiles.h"
#include "platform/linux/SystemClock.h"
#include "platform/linux/XattrProvenance.h"
#include "platform/linux/XattrTags.h"
#include "support/AttributeFolder.h"

#include <QDir>
#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace quillon::testing {

/// The real services on folders of their own that go away with the object: a home with its trash
/// and Quillon's data, and a folder to tidy. Names are relative to the folder to tidy unless they
/// start with a slash.
class LinuxMachine {
public:
    LinuxMachine() {
        std::filesystem::create_directories(work());
        std::filesystem::create_directories(home() + "/data/shortcuts");
    }

    [[nodiscard]] std::string home() const { return root_.path().toStdString() + "/home"; }
    [[nodiscard]] std::string work() const { return home() + "/work"; }
    [[nodiscard]] std::string at(const std::string& name) const {
        return name.starts_with('/') ? name : work() + '/' + name;
    }

    /// Makes the file and the folders that lead to it, and returns its path.
    std::string write(const std::string& name, const std::string& contents) const {
        std::filesystem::create_directories(std::filesystem::path(at(name)).parent_path());
        std::ofstream(at(name), std::ios::binary) << contents;
        return at(name);
    }
    std::string makeFolder(const std::string& name) const {
        std::filesystem::create_directories(at(name));
        return at(name);
    }

    [[nodiscard]] std::string contents(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(at(name), std::ios::binary).rdbuf();
        return text.str();
    }
    /// Everything below the folder to tidy, relative to it; folders end with a slash.
    [[nodiscard]] std::set<std::string> tree() const {
        std::set<std::string> found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(work()))
            found.insert(std::filesystem::relative(entry.path(), work()).string() +
                         (entry.is_directory() && !entry.is_symlink() ? "/" : ""));
        return found;
    }

private:
    /// The first place whose file system holds tags.
    static QString rootTemplate() {
        const QString name = QStringLiteral("/quillon-XXXXXX");
        for (const QString& place : {QDir::tempPath(), QStringLiteral("/var/tmp")}) {
            const QTemporaryDir trial(place + name);
            if (trial.isValid() && setAttribute(trial.path().toStdString(), "user.probe", "1"))
                return place + name;
        }
        return QDir::currentPath() + name;
    }

    QTemporaryDir root_{rootTemplate()};
    LinuxFileSystem fileSystem_{"test"};
    LinuxTrash trash_{fileSystem_, home() + "/.local/share/Trash"};
    XattrTags tags_;
    XattrProvenance provenance_;
    NextcloudFiles cloudFiles_;
    MimeContentTypes contentTypes_;
    LinuxProcesses processes_;
    BsdtarArchives archives_{processes_, "test"};
    SystemClock clock_;

public:
    Platform platform{.fileSystem = fileSystem_,
                      .trash = trash_,
                      .tags = tags_,
                      .provenance = provenance_,
                      .cloudFiles = cloudFiles_,
                      .contentTypes = contentTypes_,
                      .processes = processes_,
                      .archives = archives_,
                      .clock = clock_,
                      .folders = {home(), home() + "/data", home() + "/run"}};
};

} // namespace quillon::testing
