#include "assistant/backends/OnDeviceModel.h"

#include "assistant/backends/AnswerSchema.h"
#include "assistant/backends/JsonSplice.h"
#include "assistant/backends/LocalModels.h"
#include "assistant/backends/ModelHost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using State = LocalModelState::Kind;

constexpr int accepted = 200;
constexpr int notNow = 503;
constexpr double temperature = 0.2;
// In tokens. Two dozen files with what is in them, and the answer: more than servers allow unasked.
constexpr int contextLength = 8192;
constexpr int mostDetail = 1000; // characters of what a server says about an error

std::unexpected<AIError> aiFailure(AIError::Kind kind, const QString& detail = {}) {
    return std::unexpected(AIError{.kind = kind, .detail = detail});
}

std::unexpected<AIError> unavailable(const LocalModelState& state, SaidIn where) {
    return aiFailure(AIError::Kind::onDeviceUnavailable, statusOf(state, where).message);
}

QByteArray compact(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

HttpRequest requestTo(const QUrl& host, const char* path, std::optional<QByteArray> body,
                      std::chrono::milliseconds patience) {
    return {.url = host.resolved(QUrl(QString::fromLatin1(path))),
            .headers = {{"content-type", "application/json"}},
            .body = std::move(body),
            .patience = patience};
}

/// What the server was asked to do, and a model's schema along with it: the server binds the answer
/// to the schema, but only the prompt tells the model what it means.
QByteArray chatBody(const QString& model, const AIRequest& request) {
    QString system = request.system;
    if (request.schema)
        system +=
            u"\n\nAnswer with JSON that fits this schema:\n"_s + QString::fromUtf8(*request.schema);
    const QJsonArray messages{
        QJsonObject{{u"role"_s, u"system"_s}, {u"content"_s, system}},
        QJsonObject{{u"role"_s, u"user"_s},
                    {u"content"_s, OnDeviceModel::flatten(request.messages)}}};
    const QJsonObject body{{u"model"_s, model},
                           {u"messages"_s, messages},
                           {u"stream"_s, false},
                           {u"think"_s, false},
                           {u"truncate"_s, false},
                           {u"options"_s, QJsonObject{{u"temperature"_s, temperature},
                                                      {u"num_ctx"_s, contextLength}}}};
    return request.schema ? withRawEntry(body, "format", *request.schema) : compact(body);
}

/// Servers differ in what they say, but all speak of the context when it is too small; one that
/// gave up waiting speaks of "context deadline exceeded".
bool isAboutLength(const QString& said) {
    const auto says = [&](QLatin1StringView word) {
        return said.contains(word, Qt::CaseInsensitive);
    };
    return says("context"_L1) && !says("deadline"_L1) &&
           (says("exceed"_L1) || says("too long"_L1) || says("length"_L1));
}

std::unexpected<AIError> serverError(int status, const QString& said, SaidIn where) {
    if (isAboutLength(said))
        return aiFailure(AIError::Kind::tooLong);
    if (status == notNow && !said.contains("busy"_L1))
        return unavailable({.kind = State::loading}, where);
    return aiFailure(AIError::Kind::localModel,
                     said.isEmpty() ? u"the server returned an error (%1)."_s.arg(status)
                                    : said.left(mostDetail));
}

bool isUsable(const QString& text, const std::optional<QByteArray>& schema) {
    if (!schema)
        return !text.isEmpty();
    const QJsonDocument answer = QJsonDocument::fromJson(text.toUtf8());
    const QJsonValue value = answer.isArray()    ? QJsonValue(answer.array())
                             : answer.isObject() ? QJsonValue(answer.object())
                                                 : QJsonValue(QJsonValue::Undefined);
    return fits(value, QJsonDocument::fromJson(*schema).object()) && !value.isUndefined();
}

/// The models that may be asked, or why there is none.
std::expected<QList<LocalModel>, LocalModelState> candidates(const Expected<HttpReply>& tags,
                                                             const QString& chosen) {
    if (!tags)
        return std::unexpected(LocalModelState{.kind = State::serverAbsent});
    const auto installed = installedModels(tags->body);
    if (tags->status != accepted || !installed)
        return std::unexpected(
            LocalModelState{.kind = tags->status == notNow ? State::loading : State::other});
    if (!chosen.isEmpty()) {
        const std::optional<LocalModel> model = findModel(*installed, chosen);
        if (namesElsewhere(chosen) || (model && model->isElsewhere))
            return std::unexpected(LocalModelState{.kind = State::elsewhere, .name = chosen});
        if (!model)
            return std::unexpected(LocalModelState{.kind = State::notInstalled, .name = chosen});
        return QList{*model};
    }
    QList<LocalModel> models = *installed;
    models.removeIf([](const LocalModel& model) { return model.isElsewhere; });
    return models;
}

} // namespace

QCoro::Task<LocalModelState> OnDeviceModel::look(QString chosen) const {
    // What is used after a wait is in the frame: this may be gone by then.
    HttpClient& http = http_;
    const std::chrono::milliseconds patience = patience_.look;
    const Expected<QUrl> host = localHost(host_);
    if (!host)
        co_return LocalModelState{.kind = State::hostRefused, .name = host.error().message};

    HttpRequest ask = requestTo(*host, "/api/tags", {}, patience);
    const Expected<HttpReply> tags = co_await http.fetch(std::move(ask));
    const auto models = candidates(tags, chosen);
    if (!models)
        co_return models.error();
    for (const LocalModel& model : *models) {
        ask = requestTo(*host, "/api/show", compact({{u"model"_s, model.name}}), patience);
        const Expected<HttpReply> show = co_await http.fetch(std::move(ask));
        if (!show)
            co_return LocalModelState{.kind = State::serverAbsent};
        const auto details = show->status == accepted ? modelDetails(show->body) : std::nullopt;
        if (!details)
            co_return LocalModelState{.kind = State::other};
        if (!details->isElsewhere && details->canAnswer)
            co_return LocalModelState{.kind = State::ready, .name = model.name};
        if (!chosen.isEmpty())
            co_return LocalModelState{.kind = details->isElsewhere ? State::elsewhere
                                                                   : State::cannotAnswer,
                                      .name = model.name};
    }
    co_return LocalModelState{.kind = State::noModel};
}

QCoro::Task<AIExpected<QString>> OnDeviceModel::respond(QString model, AIRequest request) const {
    const Expected<QUrl> host = localHost(host_);
    if (!host)
        co_return aiFailure(AIError::Kind::onDeviceUnavailable, host.error().message);
    HttpRequest ask = requestTo(*host, "/api/chat", chatBody(model, request), patience_.respond);
    ask.stop = request.stop;
    const SaidIn where = where_; // this may be gone by then
    const Expected<HttpReply> reply = co_await http_.fetch(std::move(ask));
    if (reply)
        co_return parse(reply->body, reply->status, request.schema, where);
    if (reply.error().kind == ErrorKind::invalid)
        co_return aiFailure(AIError::Kind::badResponse);
    co_return aiFailure(AIError::Kind::localModel, reply.error().message);
}

QString OnDeviceModel::flatten(const QList<AIMessage>& messages) {
    if (messages.isEmpty())
        return {};
    if (messages.size() == 1)
        return messages.first().text;
    QStringList lines;
    for (const AIMessage& message : messages.first(messages.size() - 1))
        lines.append((message.role == AIMessage::Role::user ? u"User: "_s : u"Dobbin: "_s) +
                     message.text);
    return u"Earlier in this conversation:\n"_s + lines.join(u'\n') + u"\n\n"_s +
           messages.last().text;
}

AIExpected<QString> OnDeviceModel::parse(const QByteArray& body, int status,
                                         const std::optional<QByteArray>& schema, SaidIn where) {
    const QJsonObject answer = QJsonDocument::fromJson(body).object();
    const QString error = answer[u"error"].toString();
    if (status != accepted || !error.isEmpty())
        return serverError(status, error, where);
    if (saysElsewhere(answer))
        return unavailable({.kind = State::elsewhere, .name = answer[u"model"].toString()}, where);
    const QJsonObject message = answer[u"message"].toObject();
    const QString reason = answer[u"done_reason"].toString();
    if (reason == u"refusal" || reason == u"content_filter" ||
        !message[u"refusal"].toString().isEmpty())
        return aiFailure(AIError::Kind::declined);
    // No length was asked for, so it is the context that has ended.
    if (reason == u"length")
        return aiFailure(AIError::Kind::tooLong);
    const QString text = message[u"content"].toString();
    if (!isUsable(text, schema))
        return aiFailure(AIError::Kind::badResponse);
    return text;
}

} // namespace quillon
