#include "ui/dobbin/SettingsModel.h"

#include "store/Diagnostics.h"
#include "store/Sentences.h"
#include "store/SettingsTable.h"
#include "store/Support.h"

#include <QPointer>
#include <QSysInfo>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

SettingsModel::SettingsModel(Surroundings around, QObject* parent)
    : QObject(parent)
    , around_(std::move(around))
    , onDevice_(around_.settings, around_.assistant)
    , claude_(around_.assistant, onDevice_) {
    connect(&around_.store, &AppStore::isPausedChanged, this, &SettingsModel::changed);
}

SettingsModel::~SettingsModel() = default;

void SettingsModel::open(const QString& page) {
    if (!page.isEmpty())
        setPage(page);
    Q_EMIT openRequested();
}

void SettingsModel::setShown(bool shown) {
    if (isShown_ == shown)
        return;
    isShown_ = shown;
    looking_ = shown ? around_.timers.every(1s, [this] { refresh(); }) : nullptr;
    if (shown) {
        error_.clear();
        exported_.clear();
        lookAtPage();
        refresh();
        Q_EMIT changed();
    }
    Q_EMIT isShownChanged();
}

void SettingsModel::setPage(const QString& page) {
    if (page_ == page)
        return;
    page_ = page;
    if (isShown_)
        lookAtPage();
    Q_EMIT pageChanged();
}

void SettingsModel::lookAtPage() {
    if (page_ != u"dobbin")
        return;
    onDevice_.check();
    claude_.open();
}

QString SettingsModel::version() {
    return tr("Quillon %1").arg(QStringLiteral(QUILLON_VERSION));
}

bool SettingsModel::showDockIcon() const {
    return settingTruth(around_.settings, u"showDockIcon");
}

void SettingsModel::setShowDockIcon(bool on) {
    set(u"showDockIcon", on);
}

void SettingsModel::setLaunchAtLogin(bool on) {
    note(around_.loginItem.setOn(on));
}

bool SettingsModel::notifies() const {
    return settingTruth(around_.settings, u"notificationsEnabled");
}

void SettingsModel::setNotifies(bool on) {
    set(u"notificationsEnabled", on);
}

void SettingsModel::setPaused(bool paused) {
    around_.store.setPaused(paused);
}

void SettingsModel::set(QStringView key, bool on) {
    note(setSetting(around_.settings, *findSetting(key), on ? u"true"_s : u"false"_s));
}

void SettingsModel::note(const Expected<void>& result) {
    error_ = result ? QString() : result.error().message + u'.';
    shown_ = everything();
    Q_EMIT changed();
}

QStringList SettingsModel::everything() const {
    QStringList values{around_.loginItem.isOn() ? u"on"_s : u"off"_s};
    for (const Setting& setting : settingsTable())
        values.append(settingText(around_.settings, setting));
    return values;
}

void SettingsModel::refresh() {
    const QStringList now = everything();
    if (now == shown_)
        return;
    shown_ = now;
    Q_EMIT changed();
    if (page_ == u"dobbin")
        claude_.refresh();
}

void SettingsModel::exportDiagnostics() {
    const QPointer<SettingsModel> alive(this);
    around_.fileChooser.chooseNewFile(tr("Export Diagnostics"), diagnosticsFileName.toString(),
                                      [alive](const std::optional<std::string>& path) {
                                          if (alive && path)
                                              alive->write(*path);
                                      });
}

void SettingsModel::write(const std::string& path) {
    struct Report {
        std::vector<WatchedFolder> folders;
        QHash<QUuid, FolderAccess> access;
        std::vector<LogEntry> logs;
        QStringList warnings;
        DiagnosticsSystem system;
        Expected<void> result = {};
    };
    AppStore& store = around_.store;
    const auto report =
        std::make_shared<Report>(Report{.folders = store.folders(),
                                        .access = store.folderAccess(),
                                        .logs = store.recentLogs(),
                                        .warnings = store.openingWarnings() + store.watchWarnings(),
                                        .system = {.appVersion = QStringLiteral(QUILLON_VERSION),
                                                   .version = QSysInfo::prettyProductName(),
                                                   .now = around_.clock.now()}});
    isExporting_ = true;
    exported_.clear();
    error_.clear();
    Q_EMIT changed();
    const QPointer<SettingsModel> alive(this);
    around_.background.start(
        [report, path, &storage = around_.storage] {
            const QString text = diagnosticsReport(report->folders, report->access, report->logs,
                                                   report->warnings, report->system);
            report->result = storage.writeDurably(path, text.toUtf8() + '\n');
        },
        [alive, report, path] {
            if (!alive)
                return;
            alive->isExporting_ = false;
            if (report->result) {
                alive->exportedPath_ = path;
                alive->exported_ = tr("The report is in %1").arg(pathText(path));
            } else {
                alive->error_ = tr("The report can’t be written to %1: %2.")
                                    .arg(pathText(path), report->result.error().message);
            }
            Q_EMIT alive->changed();
        });
}

void SettingsModel::revealExported() {
    around_.fileManager.reveal(exportedPath_);
}

void SettingsModel::writeToSupport() {
    around_.fileManager.openAddress(mailtoURL(QStringLiteral(QUILLON_VERSION)));
}

void SettingsModel::openWebsite() {
    around_.fileManager.openAddress(websiteURL());
}

void SettingsModel::openKeyPage() {
    around_.fileManager.openAddress(u"https://console.anthropic.com/settings/keys"_s);
}

void SettingsModel::showIntroduction() {
    around_.introduce();
    Q_EMIT closeRequested();
}

} // namespace quillon
