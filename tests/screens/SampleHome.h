#pragma once

#include "model/WatchedFolder.h"
#include "platform/UserFolders.h"

#include <QTemporaryDir>

#include <string>

namespace quillon::testing {

/// A home with folders, files, rules and a past, for pictures and for trying things by hand. Its
/// times are relative to now, its sizes are holes.
class SampleHome {
public:
    enum class Contents {
        full,
        noFolders, ///< files, but nothing watched yet
    };

    explicit SampleHome(Contents contents = Contents::full);
    ~SampleHome();
    SampleHome(const SampleHome&) = delete;
    SampleHome& operator=(const SampleHome&) = delete;

    [[nodiscard]] UserFolders folders() const;
    [[nodiscard]] std::string home() const;
    /// The absolute path of what lies in the home.
    [[nodiscard]] std::string at(const std::string& name) const;

    /// By the last part of its path: "Downloads".
    [[nodiscard]] QUuid folderID(const QString& name) const;
    [[nodiscard]] QUuid ruleID(const QString& name) const;

private:
    QTemporaryDir root_;
    std::vector<WatchedFolder> watched_;
};

} // namespace quillon::testing
