#pragma once

#include "platform/Archives.h"
#include "platform/CloudFiles.h"
#include "platform/ContentTypes.h"
#include "platform/FileNames.h"
#include "platform/FileSystem.h"
#include "platform/FileTags.h"
#include "platform/Platform.h"
#include "platform/Processes.h"
#include "platform/Provenance.h"
#include "platform/Trash.h"
#include "support/FakeClock.h"

#include <QHash>
#include <QString>

#include <map>
#include <set>

namespace quillon::testing {

/// Tags by path, kept in memory; an error stands for a list that can't be decoded.
class FakeTags : public FileTags {
public:
    std::map<std::string, Expected<QStringList>> byPath;
    mutable int reads = 0;

    Expected<QStringList> tags(const std::string& path) const override {
        ++reads;
        const auto found = byPath.find(path);
        return found == byPath.end() ? QStringList() : found->second;
    }
    Expected<bool> add(const std::string& path, const QString& name, int) override {
        return change(path, name, true);
    }
    Expected<bool> remove(const std::string& path, const QString& name) override {
        return change(path, name, false);
    }

private:
    Expected<bool> change(const std::string& path, const QString& name, bool add) {
        Expected<QStringList>& list = byPath[path];
        if (!list)
            return std::unexpected(list.error());
        if (list->contains(name, Qt::CaseInsensitive) == add)
            return false;
        if (add)
            list->append(name);
        else
            list->removeIf(
                [&](const QString& tag) { return tag.compare(name, Qt::CaseInsensitive) == 0; });
        return true;
    }
};

class FakeProvenance : public Provenance {
public:
    std::map<std::string, QStringList> byPath;
    mutable int reads = 0;

    QStringList whereFrom(const std::string& path) const override {
        ++reads;
        const auto found = byPath.find(path);
        return found == byPath.end() ? QStringList() : found->second;
    }
};

/// Types by extension; what is not in it is unknown.
class FakeContentTypes : public ContentTypes {
public:
    QHash<QString, QStringList> byExtension{
        {QStringLiteral("png"), {QStringLiteral("image/png")}},
        {QStringLiteral("mp4"), {QStringLiteral("video/mp4")}},
        {QStringLiteral("pdf"), {QStringLiteral("application/pdf")}},
        {QStringLiteral("txt"), {QStringLiteral("text/plain")}},
        {QStringLiteral("zip"), {QStringLiteral("application/zip")}},
    };

    QStringList conformance(const QString& fileName) const override {
        return byExtension.value(fileName.section(u'.', -1).toLower());
    }
};

class FakeCloudFiles : public CloudFiles {
public:
    std::set<std::string> onlineOnly;

    bool isOnlineOnly(const std::string& path) const override { return onlineOnly.contains(path); }
};

/// Services that a test of pure decisions must never reach: each of them only says so.
class NoFileSystem : public FileSystem {
public:
    Expected<Listing> list(const std::string&, const ListOptions&) const override { return no(); }
    Expected<FileStatus> status(const std::string&) const override { return no(); }
    std::string resolved(const std::string& path) const override { return path; }
    Expected<Placement> move(const std::string&, const std::string&) override { return no(); }
    Expected<Placement> copy(const std::string&, const std::string&) override { return no(); }
    Expected<void> makeFolders(const std::string&) override { return no(); }

private:
    static std::unexpected<Error> no() {
        return failure(ErrorKind::unsupported, QStringLiteral("no file system here"));
    }
};

class NoTrash : public Trash {
public:
    Expected<std::string> put(const std::string&) override { return no(); }
    Expected<Placement> restore(const std::string&, const std::string&) override { return no(); }

private:
    static std::unexpected<Error> no() {
        return failure(ErrorKind::unsupported, QStringLiteral("no trash here"));
    }
};

class NoProcesses : public Processes {
public:
    Expected<ProcessResult> run(const ProcessRequest&) override {
        return failure(ErrorKind::unsupported, QStringLiteral("no processes here"));
    }
};

class NoArchives : public Archives {
public:
    Expected<Unpacked> unpack(const std::string&, const std::string&,
                              const UnpackLimits&) override {
        return failure(ErrorKind::unsupported, QStringLiteral("no archives here"));
    }
};

/// A machine in memory, for tests that decide and never touch a disk.
struct FakePlatform {
    NoFileSystem fileSystem;
    NoTrash trash;
    FakeTags tags;
    FakeProvenance provenance;
    FakeCloudFiles cloudFiles;
    FakeContentTypes contentTypes;
    NoProcesses processes;
    NoArchives archives;
    FakeClock clock{Timestamp{std::chrono::seconds(1'700'000'000)}};

    Platform platform{.fileSystem = fileSystem,
                      .trash = trash,
                      .tags = tags,
                      .provenance = provenance,
                      .cloudFiles = cloudFiles,
                      .contentTypes = contentTypes,
                      .processes = processes,
                      .archives = archives,
                      .clock = clock,
                      .folders = {"/home/user", "/home/user/.local/share/Quillon", "/run/user/1"}};
};

} // namespace quillon::testing
