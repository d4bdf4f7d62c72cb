#include "ui/folders/FolderListModel.h"

#include "model/Uuid.h"
#include "ui/CountTexts.h"
#include "ui/FolderLook.h"
#include "ui/FolderNames.h"
#include "ui/editor/EditedRows.h"
#include "ui/editor/FolderChoices.h"
#include "ui/folders/FolderStyles.h"

#include <QPointer>

#include <algorithm>
#include <memory>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t largestShownCount = 99;

} // namespace

FolderListModel::FolderListModel(const Surroundings& around, QObject* parent)
    : KeyedRows(parent), around_(around) {
    AppStore& store = around_.store;
    for (const auto signal : {&AppStore::foldersChanged, &AppStore::recentLogsChanged,
                              &AppStore::folderAccessChanged, &AppStore::needsAttentionChanged})
        connect(&store, signal, this, &FolderListModel::refresh);
    connect(&store, &AppStore::isPausedChanged, this, &FolderListModel::changed);
    connect(&store, &AppStore::selectedFolderIDChanged, this, &FolderListModel::currentChanged);
    connect(&store, &AppStore::lastRuleCopyChanged, this, &FolderListModel::tellOfCopy);
    refresh();
}

FolderListModel::~FolderListModel() = default;

QString FolderListModel::currentKey() const {
    const auto selected = around_.store.selectedFolderID();
    return selected ? uuidText(*selected) : QString();
}

int FolderListModel::currentIndex() const {
    const auto found = std::ranges::find(rows(), currentKey(), &FolderRow::key);
    return found == rows().end() ? -1 : int(found - rows().begin());
}

void FolderListModel::select(const QString& key) {
    if (row(key))
        around_.store.setSelectedFolderID(uuidFromText(key));
}

void FolderListModel::selectAt(int row) {
    if (row >= 0 && row < rowCount())
        select(rows()[std::size_t(row)].key);
}

void FolderListModel::togglePaused() {
    around_.store.setPaused(!around_.store.isPaused());
}

void FolderListModel::chooseNew() {
    around_.fileChooser.chooseFolder(
        tr("Choose a folder to keep tidy"), {}, [self = QPointer(this)](const auto& chosen) {
            if (self && chosen && canBeKept(*chosen, self->around_.toasts))
                self->add({*chosen}, -1);
        });
}

bool FolderListModel::mayTake(const QList<QUrl>& dropped) const {
    return std::ranges::any_of(dropped, &QUrl::isLocalFile);
}

void FolderListModel::addDropped(const QList<QUrl>& dropped, int row) {
    std::vector<std::string> paths;
    for (const QUrl& url : dropped)
        if (url.isLocalFile())
            paths.push_back(url.toLocalFile().toStdString());
    add(std::move(paths), row);
}

void FolderListModel::add(std::vector<std::string> paths, int row) {
    struct Found {
        QStringList folders;
        QStringList others;
    };
    const auto found = std::make_shared<Found>();
    around_.background.start(
        [found, paths = std::move(paths), &fileSystem = around_.fileSystem] {
            for (const std::string& path : paths) {
                // A link to a folder counts as that folder.
                const auto status = fileSystem.status(fileSystem.resolved(path));
                const bool isFolder = status && status->type == FileType::directory;
                (isFolder ? found->folders : found->others).append(QString::fromStdString(path));
            }
        },
        [self = QPointer(this), found, row] {
            if (!self)
                return;
            self->addFolders(found->folders, row);
            if (!found->others.isEmpty())
                self->around_.toasts.show(
                    tr("%1 isn’t a folder").arg(found->others.front().section(u'/', -1)));
        });
}

void FolderListModel::addFolders(const QStringList& paths, int row) {
    AppStore& store = around_.store;
    for (const QString& path : paths) {
        if (const WatchedFolder* const known = store.folderAt(path)) {
            store.setSelectedFolderID(known->id);
            around_.toasts.show(tr("%1 is watched already").arg(known->name()));
        } else if (const auto added = store.addFolder(path)) {
            const QString symbol = suitingSymbol(store.folder(*added)->path);
            if (symbol != u"folder")
                store.setSymbol(symbol, *added);
            if (row >= 0)
                moveBefore(uuidText(*added), row++);
        }
    }
}

void FolderListModel::moveBefore(const QString& key, int row) {
    std::vector<WatchedFolder> folders = around_.store.folders();
    const auto found =
        std::ranges::find(folders, uuidFromText(key).value_or(QUuid()), &WatchedFolder::id);
    if (found != folders.end() && moveElementBefore(folders, int(found - folders.begin()), row))
        around_.store.setFolders(std::move(folders));
}

void FolderListModel::moveBy(const QString& key, int offset) {
    const auto found = std::ranges::find(rows(), key, &FolderRow::key);
    if (found != rows().end())
        moveBefore(key, int(found - rows().begin()) + offset + (offset > 0 ? 1 : 0));
}

void FolderListModel::remove(const QString& key) {
    const auto id = uuidFromText(key);
    const WatchedFolder* const folder = id ? around_.store.folder(*id) : nullptr;
    if (!folder)
        return;
    const std::size_t rules = folder->rules.size();
    QString text = tr("Your files stay where they are.");
    if (rules > 0)
        text = (rules == 1 ? tr("Its rule goes too.")
                           : tr("Its %1 go too.", "a number of rules").arg(ruleCount(rules))) +
               u' ' + text;
    question_.ask({.title = tr("Stop watching %1?").arg(folder->name()),
                   .text = text,
                   .yes = tr("Remove"),
                   .no = tr("Cancel"),
                   .isDestructive = true},
                  [&store = around_.store, id = *id] { store.removeFolder(id); });
}

void FolderListModel::locate(const QString& key) {
    const auto id = uuidFromText(key);
    const WatchedFolder* const folder = id ? around_.store.folder(*id) : nullptr;
    if (!folder)
        return;
    around_.fileChooser.chooseFolder(
        tr("Where is %1 now?").arg(folder->name()), {},
        [self = QPointer(this), id = *id](const auto& chosen) {
            if (!self || !chosen || !canBeKept(*chosen, self->around_.toasts))
                return;
            AppStore& store = self->around_.store;
            const QString path = QString::fromStdString(*chosen);
            const WatchedFolder* const other = store.folderAt(path);
            if (other && other->id != id)
                self->around_.toasts.show(tr("%1 is watched already").arg(other->name()));
            else
                store.relocateFolder(path, id);
        });
}

void FolderListModel::copyRule(const QString& ruleID, const QString& key) {
    const auto rule = uuidFromText(ruleID);
    const auto folder = uuidFromText(key);
    if (rule && folder)
        around_.store.copyRule(*rule, *folder);
}

void FolderListModel::tellOfCopy() {
    const auto& copy = around_.store.lastRuleCopy();
    if (copy)
        around_.toasts.show(
            tr("Copied “%1” to %2").arg(copy->ruleName, copy->folderName), tr("Show"),
            [&store = around_.store, id = copy->folderID] { store.setSelectedFolderID(id); });
}

void FolderListModel::refresh() {
    std::vector<FolderRow> next;
    for (const WatchedFolder& folder : around_.store.folders())
        next.push_back(rowOf(folder, next.size()));
    setRows(next);
    Q_EMIT changed();
    Q_EMIT currentChanged();
}

FolderRow FolderListModel::rowOf(const WatchedFolder& folder, std::size_t position) const {
    const FolderLook look = lookOf(folder, position);
    FolderRow row{.key = uuidText(folder.id),
                  .name = folder.name(),
                  .path = FolderChoices({}, around_.home).place(folder.path),
                  .tint = look.tint,
                  .symbol = look.symbol,
                  .caption = label(folder.timing())};
    const FolderAccess access = around_.store.folderAccess().value(folder.id, FolderAccess::ok);
    const std::size_t errors = around_.store.recentErrorCount(folder.id);
    row.isTrouble = access != FolderAccess::ok;
    row.isMissing = access == FolderAccess::missing;
    if (access == FolderAccess::missing) {
        row.caption = tr("Folder not found");
        row.badgeKind = u"warn"_s;
        row.badgeText = u"!"_s;
    } else if (access == FolderAccess::denied) {
        row.caption = tr("Access blocked");
        row.badgeKind = u"warn"_s;
        row.badgeIcon = u"lock"_s;
    } else if (errors > 0) {
        row.badgeKind = u"error"_s;
        row.badgeText =
            errors > largestShownCount ? u"%1+"_s.arg(largestShownCount) : QString::number(errors);
    }
    row.description = tr("%1.", "a sentence").arg(row.caption);
    if (row.badgeKind == u"error")
        row.description += u' ' + tr("%1.", "a sentence").arg(errorCount(errors));
    return row;
}

} // namespace quillon
