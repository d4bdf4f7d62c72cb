#include "ui/dobbin/ClaudeSettings.h"

#include <QLocale>
#include <QPointer>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

ClaudeSettings::ClaudeSettings(std::function<AIManager&()> assistant, const OnDeviceCard& card,
                               QObject* parent)
    : QObject(parent), assistant_(std::move(assistant)), card_(card) {
    connect(&card, &OnDeviceCard::changed, this, &ClaudeSettings::changed);
}

void ClaudeSettings::open() {
    AIManager* const manager = &assistant_();
    for (const auto signal : {&AIManager::settingsChanged, &AIManager::keySuffixChanged,
                              &AIManager::requestsThisMonthChanged})
        connect(manager, signal, this, &ClaudeSettings::changed, Qt::UniqueConnection);
    isKeySaved_ = false;
    keyError_.clear();
    error_.clear();
    load();
}

void ClaudeSettings::refresh() {
    Q_EMIT changed();
}

QCoro::Task<> ClaudeSettings::load() {
    const QPointer<ClaudeSettings> alive(this);
    const Expected<void> loaded = co_await assistant_().loadKey();
    if (alive)
        noteKeyring(loaded);
}

void ClaudeSettings::noteKeyring(const Expected<void>& result) {
    const bool isTrouble = !result && result.error().kind != ErrorKind::notFound;
    isLocked_ = isTrouble && result.error().kind == ErrorKind::locked && !hasKey();
    keyringError_ = isTrouble && !isLocked_ ? result.error().message + u'.' : QString();
    Q_EMIT changed();
}

void ClaudeSettings::note(const Expected<void>& result) {
    error_ = result ? QString() : result.error().message + u'.';
    Q_EMIT changed();
}

void ClaudeSettings::setUseClaude(bool on) {
    isKeySaved_ = false;
    note(assistant_().setUseClaude(on));
}

QStringList ClaudeSettings::models() {
    QStringList names;
    for (std::size_t i = 0; i < rawValues<ClaudeModel>.size(); ++i)
        names.append(label(static_cast<ClaudeModel>(i)));
    return names;
}

void ClaudeSettings::setModel(int index) {
    if (index >= 0 && std::size_t(index) < rawValues<ClaudeModel>.size())
        note(assistant_().setClaudeModel(static_cast<ClaudeModel>(index)));
}

QString ClaudeSettings::requests() const {
    return QLocale().toString(assistant_().requestsThisMonth());
}

QString ClaudeSettings::keyText() const {
    return hasKey() ? tr("Key ending %1").arg(assistant_().keySuffix()) : QString();
}

QString ClaudeSettings::keyCaption() const {
    if (isLocked_)
        return tr("Your keyring is locked. Unlock it to use Claude.");
    if (hasKey())
        return tr("Saved in your keyring");
    if (!keyringError_.isEmpty())
        return keyringError_;
    return useClaude() ? tr("Until it's saved, Dobbin keeps using %1.").arg(card_.name())
                       : tr("It’s checked first, and kept in your keyring.");
}

QString ClaudeSettings::note() const {
    if (!error_.isEmpty())
        return error_;
    if (!isKeySaved_)
        return {};
    return useClaude() ? tr("Key saved. Dobbin is now using Claude.")
                       : tr("Key saved. Switch on Use Claude for Dobbin to use it.");
}

void ClaudeSettings::saveKey(const QString& typed) {
    if (!isSaving_)
        save(typed);
}

QCoro::Task<> ClaudeSettings::save(QString typed) {
    const QPointer<ClaudeSettings> alive(this);
    isSaving_ = true;
    isKeySaved_ = false;
    keyError_.clear();
    Q_EMIT changed();
    const Expected<void> saved = co_await assistant_().saveKey(std::move(typed));
    if (!alive)
        co_return;
    isSaving_ = false;
    isKeySaved_ = saved.has_value();
    if (saved) {
        isReplacing_ = false;
        isLocked_ = false;
        keyringError_.clear();
        Q_EMIT keySaved();
    } else {
        keyError_ = saved.error().kind == ErrorKind::locked
                        ? tr("Your keyring is locked. Unlock it to use Claude.")
                        : saved.error().message;
    }
    Q_EMIT changed();
}

void ClaudeSettings::replaceKey() {
    isReplacing_ = true;
    isKeySaved_ = false;
    keyError_.clear();
    Q_EMIT changed();
}

void ClaudeSettings::dropReplacing() {
    isReplacing_ = false;
    keyError_.clear();
    Q_EMIT changed();
}

void ClaudeSettings::removeKey() {
    remove();
}

QCoro::Task<> ClaudeSettings::remove() {
    const QPointer<ClaudeSettings> alive(this);
    isKeySaved_ = false;
    const Expected<void> removed = co_await assistant_().removeKey();
    if (!alive)
        co_return;
    keyError_ = removed ? QString() : removed.error().message + u'.';
    Q_EMIT changed();
}

} // namespace quillon
