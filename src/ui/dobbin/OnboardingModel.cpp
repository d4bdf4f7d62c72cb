#include "ui/dobbin/OnboardingModel.h"

#include "store/FolderAccess.h"
#include "store/SettingsTable.h"
#include "ui/CountTexts.h"
#include "ui/FolderLook.h"
#include "ui/FolderNames.h"
#include "ui/editor/FolderChoices.h"

#include <QPointer>

#include <algorithm>
#include <memory>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

/// What the disk says of some folders.
struct OnboardingModel::Look {
    struct Found {
        UserPlace place;
        FolderAccess access = FolderAccess::ok;
        std::size_t files = 0;
    };
    std::vector<Found> found;
};

OnboardingModel::OnboardingModel(Surroundings around, QObject* parent)
    : QObject(parent), around_(std::move(around)) {
    if (!settingTruth(around_.settings, u"hasOnboarded"))
        start();
}

void OnboardingModel::start() {
    step_ = welcomeStep;
    error_.clear();
    rows_.setRows({});
    isRunning_ = true;
    offerFolders();
    Q_EMIT changed();
    Q_EMIT isRunningChanged();
}

QString OnboardingModel::nextText() const {
    switch (step_) {
    case welcomeStep:
        return tr("Get Started");
    case foldersStep:
        if (const int count = tickedCount(); count > 0)
            return count == 1 ? tr("Watch 1 Folder") : tr("Watch %n Folders", nullptr, count);
        return tr("Continue");
    case quietStep:
        return tr("Continue");
    default:
        return tr("Finish");
    }
}

void OnboardingModel::next() {
    if (step_ == foldersStep)
        watchTicked();
    if (step_ == dobbinStep)
        return skip();
    show(step_ + 1);
}

void OnboardingModel::back() {
    if (step_ > welcomeStep)
        show(step_ - 1);
}

void OnboardingModel::show(int step) {
    step_ = step;
    error_.clear();
    if (step == foldersStep)
        offerFolders();
    if (step == dobbinStep)
        around_.onDevice.check();
    Q_EMIT changed();
}

void OnboardingModel::skip() {
    const auto noted = setSetting(around_.settings, *findSetting(u"hasOnboarded"), u"true"_s);
    if (!noted)
        around_.toasts.show(noted.error().message + u'.');
    isRunning_ = false;
    Q_EMIT isRunningChanged();
}

/// The known ones, and those that were chosen here before.
void OnboardingModel::offerFolders() {
    std::vector<UserPlace> places = around_.places();
    for (const OnboardingRow& row : rows_.rows())
        if (std::ranges::find(places, row.key.toStdString(), &UserPlace::path) == places.end())
            places.push_back({row.key.toStdString(), row.symbol});
    lookAt(std::move(places), false);
}

void OnboardingModel::lookAt(std::vector<UserPlace> places, bool isChosen) {
    const auto look = std::make_shared<Look>();
    around_.background.start(
        [look, places = std::move(places), &fileSystem = around_.fileSystem] {
            for (const UserPlace& place : places) {
                Look::Found found{.place = place, .access = probeAccess(fileSystem, place.path)};
                if (const auto listing = fileSystem.list(place.path, {}))
                    found.files = std::size_t(
                        std::ranges::count_if(listing->files, [](const ListedFile& file) {
                            return file.status.type != FileType::directory;
                        }));
                look->found.push_back(found);
            }
        },
        [alive = QPointer(this), look, isChosen] {
            if (alive)
                alive->looked(*look, isChosen);
        });
}

void OnboardingModel::looked(const Look& look, bool isChosen) {
    std::vector<OnboardingRow> rows = rows_.rows();
    const FolderChoices texts({}, around_.home);
    for (const Look::Found& found : look.found) {
        const QString path = QString::fromStdString(found.place.path);
        if (found.access == FolderAccess::missing && !isChosen)
            continue;
        auto row = std::ranges::find(rows, path, &OnboardingRow::key);
        if (row == rows.end()) {
            // Documents are left to those who want them tidied.
            const bool isUsual = found.place.symbol != u"folder-documents";
            rows.push_back({.key = path,
                            .name = path.section(u'/', -1),
                            .place = texts.place(path),
                            .symbol = found.place.symbol,
                            .tint = int(rows.size()) % folderTints,
                            .isTicked = isUsual});
            row = rows.end() - 1;
        }
        row->isWatched = around_.store.folderAt(path) != nullptr;
        row->canTick = found.access == FolderAccess::ok && !row->isWatched;
        row->reason = found.access == FolderAccess::denied
                          ? tr("Quillon isn’t allowed to read %1").arg(row->name)
                      : found.access == FolderAccess::missing ? tr("This isn’t a folder")
                                                              : QString();
        row->isTicked = row->isWatched || (row->canTick && (row->isTicked || isChosen));
        row->countText = row->reason.isEmpty() ? fileCount(found.files) : QString();
    }
    rows_.setRows(rows);
    Q_EMIT changed();
}

void OnboardingModel::setTicked(const QString& path, bool ticked) {
    std::vector<OnboardingRow> rows = rows_.rows();
    const auto row = std::ranges::find(rows, path, &OnboardingRow::key);
    if (row == rows.end() || !row->canTick)
        return;
    row->isTicked = ticked;
    rows_.setRows(rows);
    Q_EMIT changed();
}

void OnboardingModel::chooseFolder() {
    around_.fileChooser.chooseFolder(tr("Choose a folder to keep tidy"), around_.home,
                                     [alive = QPointer(this)](const auto& chosen) {
                                         if (alive && chosen &&
                                             canBeKept(*chosen, alive->around_.toasts))
                                             alive->lookAt({{*chosen, u"folder"_s}}, true);
                                     });
}

void OnboardingModel::watchTicked() {
    for (const OnboardingRow& row : rows_.rows()) {
        if (!row.isTicked || !row.canTick)
            continue;
        const auto added = around_.store.addFolder(row.key);
        if (added && row.symbol != u"folder")
            around_.store.setSymbol(row.symbol, *added);
    }
    if (const auto& unsaved = around_.store.lastSaveError())
        around_.toasts.show(unsaved->message + u'.');
}

int OnboardingModel::tickedCount() const {
    return int(std::ranges::count_if(
        rows_.rows(), [](const OnboardingRow& row) { return row.isTicked && row.canTick; }));
}

bool OnboardingModel::notifies() const {
    return settingTruth(around_.settings, u"notificationsEnabled");
}

void OnboardingModel::setNotifies(bool on) {
    note(setSetting(around_.settings, *findSetting(u"notificationsEnabled"),
                    on ? u"true"_s : u"false"_s));
}

void OnboardingModel::setLaunchAtLogin(bool on) {
    note(around_.loginItem.setOn(on));
}

void OnboardingModel::note(const Expected<void>& result) {
    error_ = result ? QString() : result.error().message + u'.';
    Q_EMIT changed();
}

} // namespace quillon
