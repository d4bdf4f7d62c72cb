#include "assistant/backends/AIManager.h"

#include "assistant/backends/MonthStamp.h"
#include "platform/SystemNames.h"
#include "store/SettingsTable.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int maxTokens = 8000;
constexpr auto account = "claude-api-key"_L1;

std::unexpected<Error> gone() {
    return failure(ErrorKind::io, u"Dobbin was stopped before there was an answer."_s);
}

template <typename T>
Later<Expected<T>>
fromKeychain(const std::function<void(std::function<void(Expected<T>)>)>& start) {
    return {start, failure(ErrorKind::io, u"The keyring was let go"_s)};
}

} // namespace

AIManager::AIManager(Settings& settings, Keychain& keychain, const Clock& clock,
                     std::function<void()> forgetAnswers, AIPatience patience, SaidIn where,
                     QObject* parent)
    : QObject(parent)
    , settings_(settings)
    , keychain_(keychain)
    , clock_(clock)
    , forgetAnswers_(std::move(forgetAnswers))
    , patience_(patience)
    , where_(where)
    , life_(std::make_shared<int>()) {}

AIManager::~AIManager() {
    life_.reset();
    http_.reset(); // whoever waits goes on within this
}

QCoro::Task<Expected<QString>> AIManager::send(AIRequest request) {
    const std::weak_ptr<const void> life = life_;
    const std::optional<Error> keyTrouble = co_await ensureKey();
    if (life.expired())
        co_return gone();
    if (useClaude() && !apiKey_.isEmpty())
        co_return co_await askClaude(std::move(request));
    Expected<QString> answer = co_await askOnDevice(std::move(request));
    // Somebody who keeps a key isn't to be told to install a model.
    if (keyTrouble && !life.expired() && status_.kind != OnDeviceStatus::Kind::available)
        co_return std::unexpected(*keyTrouble);
    co_return answer;
}

QCoro::Task<bool> AIManager::asksClaude() {
    const std::weak_ptr<const void> life = life_;
    (void)co_await ensureKey(); // without a key it is the other backend's turn
    co_return !life.expired() && useClaude() && !apiKey_.isEmpty();
}

QCoro::Task<QString> AIManager::whyUnavailable() {
    const std::weak_ptr<const void> life = life_;
    const std::optional<Error> keyTrouble = co_await ensureKey();
    if (life.expired() || (useClaude() && !apiKey_.isEmpty()))
        co_return QString();
    (void)co_await look();
    if (life.expired() || status_.kind == OnDeviceStatus::Kind::available)
        co_return QString();
    co_return keyTrouble ? keyTrouble->message + u'.' : status_.message;
}

QCoro::Task<std::optional<Error>> AIManager::ensureKey() {
    if (!useClaude() || !apiKey_.isEmpty())
        co_return std::nullopt;
    const Expected<void> loaded = co_await loadKey();
    if (loaded || loaded.error().kind == ErrorKind::notFound)
        co_return std::nullopt;
    co_return loaded.error();
}

QCoro::Task<Expected<QString>> AIManager::askClaude(AIRequest request) {
    const std::weak_ptr<const void> life = life_;
    const ClaudeClient client = claude(apiKey_);
    ClaudeClient::Request what{.model = request.cheap ? ClaudeModel::haiku : claudeModel(),
                               .system = std::move(request.system),
                               .messages = std::move(request.messages),
                               .maxTokens = maxTokens,
                               .schema = std::move(request.schema),
                               .effort = u"low"_s,
                               .stop = std::move(request.stop)};
    const ClaudeExpected<ClaudeClient::Reply> reply = co_await client.send(std::move(what));
    if (!reply)
        co_return std::unexpected(asError(reply.error()));
    if (life.expired())
        co_return gone();
    countRequest();
    co_return reply->text;
}

QCoro::Task<Expected<QString>> AIManager::askOnDevice(AIRequest request) {
    const std::weak_ptr<const void> life = life_;
    const LocalModelState state = co_await look();
    if (life.expired())
        co_return gone();
    const OnDeviceStatus status = statusOf(state, where_);
    if (status.kind != OnDeviceStatus::Kind::available) {
        const AIError error{.kind = AIError::Kind::onDeviceUnavailable, .detail = status.message};
        co_return std::unexpected(asError(error));
    }
    const OnDeviceModel model = onDevice();
    const AIExpected<QString> answer = co_await model.respond(state.name, std::move(request));
    if (!answer)
        co_return std::unexpected(asError(answer.error()));
    co_return *answer;
}

QCoro::Task<LocalModelState> AIManager::look() {
    const std::weak_ptr<const void> life = life_;
    const OnDeviceModel model = onDevice();
    LocalModelState state = co_await model.look(text(u"ai.localModel"));
    if (life.expired())
        co_return state;
    state = whileDownloading(std::move(state), download_);
    const OnDeviceStatus status = statusOf(state, where_);
    if (status != status_) {
        status_ = status;
        Q_EMIT statusChanged();
    }
    co_return state;
}

QCoro::Task<void> AIManager::refreshStatus() {
    (void)co_await look();
}

bool AIManager::suggestRules() const {
    return settingTruth(settings_, u"ai.suggestRules");
}

bool AIManager::readContents() const {
    return settingTruth(settings_, u"ai.readContents");
}

bool AIManager::useClaude() const {
    return settingTruth(settings_, u"ai.useClaude");
}

ClaudeModel AIManager::claudeModel() const {
    return fromRawValue<ClaudeModel>(text(u"ai.claudeModel")).value_or(ClaudeModel::sonnet);
}

Expected<void> AIManager::setSuggestRules(bool on) {
    return set(u"ai.suggestRules", on ? u"true"_s : u"false"_s);
}

Expected<void> AIManager::setReadContents(bool on) {
    return set(u"ai.readContents", on ? u"true"_s : u"false"_s);
}

Expected<void> AIManager::setUseClaude(bool on) {
    return set(u"ai.useClaude", on ? u"true"_s : u"false"_s);
}

Expected<void> AIManager::setClaudeModel(ClaudeModel model) {
    return set(u"ai.claudeModel", rawValue(model));
}

QCoro::Task<Expected<void>> AIManager::loadKey() {
    const std::weak_ptr<const void> life = life_;
    auto reading =
        fromKeychain<QString>([this](auto done) { keychain_.read(account, std::move(done)); });
    const Expected<QString> key = co_await reading;
    if (life.expired())
        co_return gone();
    if (!key && key.error().kind == ErrorKind::notFound)
        setKey({});
    if (!key)
        co_return std::unexpected(key.error());
    setKey(*key);
    co_return Expected<void>();
}

QCoro::Task<Expected<void>> AIManager::saveKey(QString typed) {
    const std::weak_ptr<const void> life = life_;
    const QString key = typed.trimmed();
    const ClaudeClient client = claude(key);
    const ClaudeExpected<void> verified = co_await client.verifyKey();
    if (!verified)
        co_return std::unexpected(asError(verified.error()));
    if (life.expired())
        co_return gone();
    auto saving = fromKeychain<void>(
        [this, &key](auto done) { keychain_.save(key, account, std::move(done)); });
    const Expected<void> saved = co_await saving;
    if (!saved)
        co_return failure(saved.error().kind, u"Quillon couldn't save the key to your %1. %2"_s.arg(
                                                  keychainName, saved.error().message));
    if (life.expired())
        co_return gone();
    setKey(key);
    forgetAnswers_();
    co_return Expected<void>();
}

QCoro::Task<Expected<void>> AIManager::removeKey() {
    const std::weak_ptr<const void> life = life_;
    auto removing =
        fromKeychain<void>([this](auto done) { keychain_.remove(account, std::move(done)); });
    const Expected<void> removed = co_await removing;
    if (!removed && removed.error().kind != ErrorKind::notFound)
        co_return std::unexpected(removed.error());
    if (!life.expired())
        setKey({});
    co_return Expected<void>();
}

int AIManager::requestsThisMonth() const {
    return text(u"ai.usage.month") == monthStamp(clock_.now()) ? text(u"ai.usage.count").toInt()
                                                               : 0;
}

void AIManager::countRequest() {
    const int count = requestsThisMonth() + 1;
    (void)settings_.setValue(u"ai.usage.month"_s, monthStamp(clock_.now()));
    (void)settings_.setValue(u"ai.usage.count"_s, QString::number(count));
    Q_EMIT requestsThisMonthChanged();
}

ClaudeClient AIManager::claude(const QString& key) {
    if (!http_)
        http_ = std::make_unique<HttpClient>();
    return {*http_, text(u"ai.claudeHost"), key, patience_.claude};
}

OnDeviceModel AIManager::onDevice() {
    if (!http_)
        http_ = std::make_unique<HttpClient>();
    return {*http_, text(u"ai.localHost"), patience_.local, where_};
}

QString AIManager::text(QStringView key) const {
    return settingText(settings_, *findSetting(key));
}

Expected<void> AIManager::set(QStringView key, const QString& value) {
    const QString before = text(key);
    Expected<void> result = settings_.setValue(key.toString(), value);
    if (result && before != value)
        Q_EMIT settingsChanged();
    return result;
}

void AIManager::setKey(const QString& key) {
    if (key == apiKey_)
        return;
    apiKey_ = key;
    Q_EMIT keySuffixChanged();
}

} // namespace quillon
