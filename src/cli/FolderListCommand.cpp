#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/OpenStore.h"
#include "cli/Verbs.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

FolderAccess accessOf(const WatchedFolder& folder, const StoreSnapshot& view) {
    return view.access.value(folder.id, FolderAccess::ok);
}

void printJson(const StoreSnapshot& view, std::ostream& out) {
    JsonStream json;
    json.beginList();
    for (const WatchedFolder& folder : view.state.folders) {
        json.beginObject().key("id").id(folder.id);
        json.key("name").text(folder.name()).key("path").text(folder.path);
        json.key("timing").text(rawValue(folder.timing()));
        json.key("isRecursive").truth(folder.isRecursive);
        json.key("onlyNewFiles").truth(folder.onlyNewFiles);
        json.key("skipOnlineOnly").truth(folder.skipOnlineOnly);
        if (folder.colorIndex)
            json.key("colorIndex").integer(*folder.colorIndex);
        if (folder.symbolName)
            json.key("symbolName").text(*folder.symbolName);
        json.key("rules").integer(std::int64_t(folder.rules.size()));
        json.key("access").text(rawValue(accessOf(folder, view)));
        json.key("isSettling").truth(view.settling.contains(folder.id));
        json.key("isPaused").truth(view.state.isPaused).endObject();
    }
    json.endList();
    finish(json, out);
}

QString remark(const WatchedFolder& folder, const StoreSnapshot& view) {
    QStringList remarks;
    if (folder.isRecursive)
        remarks.append(u"with subfolders"_s);
    if (folder.onlyNewFiles)
        remarks.append(u"only new files"_s);
    if (view.settling.contains(folder.id))
        remarks.append(u"still settling"_s);
    return remarks.isEmpty() ? QString() : u"  (%1)"_s.arg(remarks.join(u", "_s));
}

QString trouble(FolderAccess access) {
    switch (access) {
    case FolderAccess::ok:
        return {};
    case FolderAccess::missing:
        return u"  is missing"_s;
    case FolderAccess::denied:
        return u"  can't be read"_s;
    }
    return {};
}

void printText(const StoreSnapshot& view, const Console& console) {
    const std::vector<WatchedFolder>& folders = view.state.folders;
    ColumnWidth names;
    ColumnWidth timings;
    ColumnWidth rules;
    for (const WatchedFolder& folder : folders) {
        names.fit(folder.name());
        timings.fit(label(folder.timing()));
        rules.fit(counted(folder.rules.size(), u"rule"_s));
    }
    LineBuffer lines(console.out, console.colored);
    for (const WatchedFolder& folder : folders)
        lines.add(folder.name(), LineBuffer::Style::strong, names.columns())
            .add(u"  "_s)
            .add(label(folder.timing()), LineBuffer::Style::plain, timings.columns())
            .add(u"  "_s)
            .add(counted(folder.rules.size(), u"rule"_s), LineBuffer::Style::plain, rules.columns())
            .add(u"  "_s)
            .add(folder.path, LineBuffer::Style::faint)
            .add(trouble(accessOf(folder, view)), LineBuffer::Style::bad)
            .add(remark(folder, view), LineBuffer::Style::faint)
            .endLine();
    if (folders.empty())
        lines.add(u"No folder is watched yet; begin with: quillon folder add DIR"_s).endLine();
    if (view.state.isPaused)
        lines.add(u"Paused: nothing is tidied by itself."_s).endLine();
}

} // namespace

ExitCode folderListCommand(const PlainOptions& options, const Console& console,
                           Services& services) {
    const auto view = viewStoreFor(console, services);
    if (!view)
        return view.error();
    if (options.json)
        printJson(*view, console.out);
    else
        printText(*view, console);
    return ExitCode::done;
}

} // namespace quillon
