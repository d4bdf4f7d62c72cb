#include "ui/dobbin/OnDeviceCard.h"

#include "assistant/backends/ModelLibrary.h"
#include "model/RawValue.h"
#include "store/SettingsTable.h"
#include "ui/CountTexts.h"

#include <QPointer>

#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using Kind = LocalModelState::Kind;

OnDeviceCard::OnDeviceCard(const Settings& settings, std::function<AIManager&()> assistant,
                           QObject* parent)
    : QObject(parent), settings_(settings), assistant_(std::move(assistant)) {}

OnDeviceCard::~OnDeviceCard() {
    stop();
}

void OnDeviceCard::check() {
    if (!isChecking_)
        look();
}

QCoro::Task<> OnDeviceCard::look() {
    const QPointer<OnDeviceCard> alive(this);
    isChecking_ = true;
    Q_EMIT changed();
    const ModelLibrary library =
        co_await lookAtModels(setting(u"ai.localHost"), setting(u"ai.localModel"));
    if (!alive)
        co_return;
    isChecking_ = false;
    state_ = library.state;
    Q_EMIT changed();
}

void OnDeviceCard::askForDownload() {
    isAsking_ = true;
    Q_EMIT changed();
}

void OnDeviceCard::dropDownload() {
    isAsking_ = false;
    Q_EMIT changed();
}

void OnDeviceCard::download() {
    isAsking_ = false;
    failure_.clear();
    progress_ = {};
    const QString model = wantedModel();
    if (namesElsewhere(model)) {
        failure_ = statusOf({.kind = Kind::elsewhere, .name = model}, SaidIn::window).message;
        Q_EMIT changed();
        return;
    }
    assistant_().noteDownload(0);
    download_ = std::make_unique<ModelDownload>(
        setting(u"ai.localHost"), model,
        ModelDownload::Listener{
            .progressed =
                [this](PullProgress progress) {
                    progress_ = progress;
                    assistant_().noteDownload(progress.percent());
                    Q_EMIT changed();
                },
            .done = [this](const Expected<void>& result) { downloadEnded(result); }});
    Q_EMIT changed();
}

void OnDeviceCard::downloadEnded(const Expected<void>& result) {
    failure_ = result ? QString() : result.error().message;
    // It is what is calling.
    QMetaObject::invokeMethod(
        this,
        [this] {
            stop();
            check();
        },
        Qt::QueuedConnection);
}

void OnDeviceCard::stop() {
    if (!download_)
        return;
    download_.reset();
    assistant_().noteDownload(std::nullopt);
    Q_EMIT changed();
}

QString OnDeviceCard::badge() const {
    if (download_)
        return tr("Downloading");
    if (!state_)
        return {};
    switch (state_->kind) {
    case Kind::ready:
        return tr("Ready");
    case Kind::noModel:
    case Kind::notInstalled:
    case Kind::cannotAnswer:
        return tr("Needs a model");
    case Kind::downloading:
        return tr("Downloading");
    case Kind::loading:
        return tr("Loading");
    case Kind::elsewhere:
    case Kind::hostRefused:
        return tr("Not available");
    case Kind::serverAbsent:
    case Kind::other:
        break;
    }
    return tr("Not running");
}

QString OnDeviceCard::badgeKind() const {
    if (download_ || !state_)
        return u"neutral"_s;
    return state_->kind == Kind::ready ? u"ok"_s : u"warn"_s;
}

QString OnDeviceCard::text() const {
    if (download_)
        return progress_.total == 0 ? tr("Starting the download…")
                                    : tr("%1 % of %2. Dobbin will be ready soon.")
                                          .arg(progress_.percent())
                                          .arg(sizeText(std::uint64_t(progress_.total)));
    if (isAsking_)
        return tr("Download %1 to this computer? It takes a few gigabytes.").arg(wantedModel());
    if (!failure_.isEmpty())
        return failure_;
    if (!state_)
        return tr("Looking for the model on this computer…");
    switch (state_->kind) {
    case Kind::ready:
        return tr("Free and private. Dobbin uses it whenever Claude is off.");
    case Kind::serverAbsent:
        return tr("The on-device model isn’t running on this computer.");
    case Kind::noModel:
    case Kind::notInstalled:
        return tr("Dobbin needs a one-off download before he can help.");
    default:
        return statusOf(*state_, SaidIn::window).message;
    }
}

OnDeviceCard::Step OnDeviceCard::step() const {
    if (download_)
        return Step::stop;
    if (isAsking_)
        return Step::confirm;
    return isMissing() ? Step::download : Step::check;
}

QString OnDeviceCard::stepName() const {
    constexpr std::array names{"check", "download", "confirm", "stop"};
    return QString::fromUtf8(names.at(static_cast<std::size_t>(step())));
}

qreal OnDeviceCard::progress() const {
    return progress_.total > 0 ? qreal(progress_.done) / qreal(progress_.total) : 0;
}

QString OnDeviceCard::name() const {
    return state_ && state_->kind == Kind::ready ? state_->name : tr("the on-device model");
}

QString OnDeviceCard::wantedModel() const {
    const QString chosen = setting(u"ai.localModel");
    return chosen.isEmpty() ? toQString(recommendedModel) : chosen;
}

bool OnDeviceCard::isMissing() const {
    return state_ && (state_->kind == Kind::noModel || state_->kind == Kind::notInstalled);
}

QString OnDeviceCard::setting(QStringView key) const {
    return settingText(settings_, *findSetting(key));
}

} // namespace quillon
