#include "faults/QuillonScenarios.h"

#include "faults/QuillonOperations.h"
#include "faults/World.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace quillon::testing {
namespace {

std::string readBytes(const std::filesystem::path& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

/// The folder that the sample archive holds.
const DiskTree& unpackedTree() {
    static const DiskTree tree{{"", {.mode = S_IFDIR | 0755}},
                               {"/one.txt", sampleFile("one", 3000)},
                               {"/inner", {.mode = S_IFDIR | 0755}},
                               {"/inner/two.txt", sampleFile("two", 20'000)}};
    return tree;
}

DiskItem sampleArchive() {
    const std::string folder = Ground::instance().base() + "/archive";
    std::filesystem::create_directory(folder);
    for (const auto& [name, item] : unpackedTree())
        writeItem(folder + "/photos" + name, item);
    const std::string archive = folder + "/photos.tar.gz";
    const std::string command = "bsdtar -czf '" + archive + "' -C '" + folder + "/photos' .";
    DiskItem item = sampleFile("archive", 0);
    if (std::system(command.c_str()) == 0)
        item.content = readBytes(archive);
    removeTree(folder);
    return item;
}

Subject subject(const std::string& name, DiskItem item, Law law = Law::moves) {
    return {.name = name, .tree = {{"", std::move(item)}}, .law = law};
}

Subject report(Law law = Law::moves) {
    return subject("in/report.pdf", sampleFile("report", 50'000), law);
}

Subject folderSubject() {
    return {.name = "in/report.pdf",
            .tree = {{"", {.mode = S_IFDIR | 0750}},
                     {"/page.txt", sampleFile("page", 45'000)},
                     {"/more", {.mode = S_IFDIR | 0700}},
                     {"/more/link", {.mode = S_IFLNK | 0777, .content = "../page.txt"}},
                     {"/more/page.txt", sampleFile("more", 20'000)}}};
}

Subject linkSubject() {
    return subject("in/report.pdf", {.mode = S_IFLNK | 0777, .content = "nowhere/to be found"});
}

Operation moving(Subject what) {
    return {{std::move(what)}, "out/report.pdf", {}, moveFile, removeLeftovers};
}

Operation copying(Subject what) {
    what.law = Law::copies;
    return {{std::move(what)}, "out/report.pdf", {}, copyFile, removeLeftovers};
}

Operation renaming() {
    return {{report()},
            "in/renamed.pdf",
            {},
            acting({.type = ActionType::rename, .renamePattern = QStringLiteral("renamed")}),
            removeLeftovers};
}

Operation sorting() {
    return {{report()},
            "in/PDFs/report.pdf",
            {"in/PDFs"},
            acting({.type = ActionType::sortIntoSubfolder}),
            removeLeftovers};
}

Operation trashing(Subject what) {
    return {{std::move(what)},
            "trash/files/report.pdf",
            {},
            acting({.type = ActionType::trash}),
            removeLeftovers};
}

Operation restoring() {
    Subject trashed = subject("trash/files/report.pdf", sampleFile("report", 50'000));
    trashed.hasTrashRecord = true;
    return {{trashed}, "out/report.pdf", {}, restoreFromTrash, removeLeftovers};
}

Operation unpacking() {
    return {
        {subject(archiveName, sampleArchive()),
         {.name = unpackedName, .tree = unpackedTree(), .law = Law::appears, .contentsOnly = true}},
        unpackedName,
        {},
        unpackArchive,
        removeLeftovers};
}

Operation tidying() {
    return {{subject("in/a.pdf", sampleFile("a", 30'000)),
             subject("in/b.doc", sampleFile("b", 20'000), Law::copies),
             subject("in/c.log", sampleFile("c", 10'000)),
             subject("in/d.csv", sampleFile("d", 500)),
             subject("in/e.jpg", sampleFile("e", 40'000))},
            "out/a.pdf",
            {"in/Images"},
            tidyFolder,
            recoverTidying,
            {},
            true};
}

Operation undoing() {
    Subject trashed = subject("trash/files/c.log", sampleFile("c", 30'000));
    trashed.hasTrashRecord = true;
    return {{subject("out/a.pdf", sampleFile("a", 40'000)), trashed,
             subject("in/renamed.csv", sampleFile("d", 500))},
            "in/back.pdf",
            {},
            undoLogged,
            recoverUndoing,
            logUndoable,
            true};
}

std::vector<Scenario> makeScenarios() {
    const auto elsewhere = Devices::outElsewhere;
    const auto trashElsewhere = Devices::inElsewhere;
    using enum Machine;
    return {
        {.name = "move", .operation = moving(report())},
        {.name = "moveToTaken", .operation = moving(report()), .wantedIsTaken = true},
        {.name = "moveLink", .operation = moving(linkSubject())},
        {.name = "moveFolder", .operation = moving(folderSubject())},
        {.name = "moveAcross", .operation = moving(report()), .devices = elsewhere},
        {.name = "moveAcrossToTaken",
         .operation = moving(report()),
         .devices = elsewhere,
         .wantedIsTaken = true},
        {.name = "moveLinkAcross", .operation = moving(linkSubject()), .devices = elsewhere},
        {.name = "moveFolderAcross", .operation = moving(folderSubject()), .devices = elsewhere},
        {.name = "moveAcrossByHand",
         .operation = moving(report()),
         .devices = elsewhere,
         .machine = noKernelCopy},
        {.name = "moveAcrossWithoutExclusiveRename",
         .operation = moving(report()),
         .devices = elsewhere,
         .machine = noExclusiveRename},
        {.name = "moveBetweenMounts", .operation = moving(report()), .machine = alwaysOtherDevice},
        {.name = "moveByLink", .operation = moving(report()), .machine = noExclusiveRename},
        {.name = "copy", .operation = copying(report())},
        {.name = "copyToTaken", .operation = copying(report()), .wantedIsTaken = true},
        {.name = "copyLink", .operation = copying(linkSubject())},
        {.name = "copyAcross", .operation = copying(report()), .devices = elsewhere},
        {.name = "copyFolderAcross", .operation = copying(folderSubject()), .devices = elsewhere},
        {.name = "copyWithoutExclusiveRename",
         .operation = copying(report()),
         .machine = noExclusiveRename},
        {.name = "rename", .operation = renaming()},
        {.name = "renameToTaken", .operation = renaming(), .wantedIsTaken = true},
        {.name = "sort", .operation = sorting()},
        {.name = "trash", .operation = trashing(report())},
        {.name = "trashToTaken", .operation = trashing(report()), .wantedIsTaken = true},
        {.name = "trashFolder", .operation = trashing(folderSubject())},
        {.name = "trashElsewhere", .operation = trashing(report()), .devices = trashElsewhere},
        {.name = "trashByLink", .operation = trashing(report()), .machine = noExclusiveRename},
        {.name = "restore", .operation = restoring()},
        {.name = "restoreAcross", .operation = restoring(), .devices = elsewhere},
        {.name = "unpack", .operation = unpacking()},
        {.name = "unpackToTaken", .operation = unpacking(), .wantedIsTaken = true},
        {.name = "unpackElsewhere", .operation = unpacking(), .devices = trashElsewhere},
        {.name = "tidy", .operation = tidying()},
        {.name = "tidyAcross", .operation = tidying(), .devices = elsewhere},
        {.name = "undo", .operation = undoing()},
        {.name = "undoToTaken", .operation = undoing(), .wantedIsTaken = true},
        {.name = "undoAcross", .operation = undoing(), .devices = elsewhere},
        {.name = "undoFromTrashAcross", .operation = undoing(), .devices = trashElsewhere},
    };
}

} // namespace

const std::vector<Scenario>& quillonScenarios() {
    static const std::vector<Scenario> scenarios = makeScenarios();
    return scenarios;
}

} // namespace quillon::testing
