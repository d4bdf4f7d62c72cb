#include "assistant/backends/ClaudeClient.h"

#include "assistant/backends/JsonSplice.h"
#include "assistant/backends/ModelHost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = ClaudeError::Kind;

constexpr int accepted = 200; // no other is an answer to count on

constexpr int mostDetail = 1000; // characters of what a server says about an error

constexpr auto messagesPath = "/v1/messages"_L1;
constexpr auto modelsPath = "/v1/models?limit=1"_L1;

std::unexpected<ClaudeError> claudeFailure(Kind kind, const QString& detail = {}) {
    return std::unexpected(ClaudeError{.kind = kind, .status = 0, .detail = detail});
}

/// A header takes no other.
bool isPlainKey(const QString& key) {
    return std::ranges::all_of(key, [](QChar c) { return c > u' ' && c < u'\x7f'; });
}

QByteArray bodyOf(const ClaudeClient::Request& request) {
    QJsonArray messages;
    for (const AIMessage& message : request.messages)
        messages.append(QJsonObject{
            {u"role"_s, message.role == AIMessage::Role::user ? u"user"_s : u"assistant"_s},
            {u"content"_s, message.text}});
    const QJsonObject body{{u"model"_s, rawValue(request.model)},
                           {u"max_tokens"_s, request.maxTokens},
                           {u"system"_s, request.system},
                           {u"messages"_s, messages}};
    const QJsonObject config{{u"effort"_s, request.effort}};
    const QByteArray output =
        request.schema
            ? withRawEntry(config, "format",
                           withRawEntry({{u"type"_s, u"json_schema"_s}}, "schema", *request.schema))
            : QJsonDocument(config).toJson(QJsonDocument::Compact);
    return withRawEntry(body, "output_config", output);
}

QString textOf(const QJsonArray& content) {
    QString text;
    for (const QJsonValue& block : content)
        if (block[u"type"] == u"text"_s)
            text += block[u"text"].toString();
    return text;
}

ClaudeError transportError(const Error& error) {
    return error.kind == ErrorKind::invalid
               ? ClaudeError{.kind = Kind::badResponse}
               : ClaudeError{.kind = Kind::network, .status = 0, .detail = error.message};
}

/// Should the other end repeat the key in what it says.
ClaudeError without(const QString& key, ClaudeError error) {
    if (!key.isEmpty())
        error.detail.replace(key, u"…"_s);
    return error;
}

QCoro::Task<ClaudeExpected<HttpReply>> accepting(ClaudeExpected<HttpRequest> request,
                                                 HttpClient& http, QString key) {
    if (!request)
        co_return std::unexpected(request.error());
    Expected<HttpReply> reply = co_await http.fetch(std::move(*request));
    if (!reply)
        co_return std::unexpected(without(key, transportError(reply.error())));
    if (reply->status != accepted)
        co_return std::unexpected(without(key, ClaudeClient::error(reply->status, reply->body)));
    co_return std::move(*reply);
}

} // namespace

QCoro::Task<ClaudeExpected<ClaudeClient::Reply>> ClaudeClient::send(Request request) const {
    ClaudeExpected<HttpRequest> what = prepared(messagesPath);
    if (what) {
        what->headers.emplaceBack("content-type", "application/json");
        what->body = bodyOf(request);
        what->patience = patience_.send;
        what->stop = request.stop;
    }
    const ClaudeExpected<HttpReply> reply = co_await accepting(std::move(what), http_, key_);
    if (!reply)
        co_return std::unexpected(reply.error());
    co_return parse(reply->body, reply->status);
}

QCoro::Task<ClaudeExpected<void>> ClaudeClient::verifyKey() const {
    ClaudeExpected<HttpRequest> what = prepared(modelsPath);
    if (what)
        what->patience = patience_.verify;
    const ClaudeExpected<HttpReply> reply = co_await accepting(std::move(what), http_, key_);
    if (!reply)
        co_return std::unexpected(reply.error());
    co_return ClaudeExpected<void>();
}

ClaudeExpected<ClaudeClient::Reply> ClaudeClient::parse(const QByteArray& body, int status) {
    if (status != accepted)
        return std::unexpected(error(status, body));
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (!document.isObject())
        return claudeFailure(Kind::badResponse);
    const QString reason = document[u"stop_reason"].toString();
    if (reason == u"refusal")
        return claudeFailure(Kind::refused);
    if (reason == u"max_tokens")
        return claudeFailure(Kind::truncated);
    const QString text = textOf(document[u"content"].toArray());
    if (text.isEmpty())
        return claudeFailure(Kind::badResponse);
    const QJsonValue usage = document[u"usage"];
    return Reply{.text = text,
                 .inputTokens = usage[u"input_tokens"].toInteger(),
                 .outputTokens = usage[u"output_tokens"].toInteger()};
}

ClaudeError ClaudeClient::error(int status, const QByteArray& body) {
    switch (status) {
    case 401:
    case 403:
        return {.kind = Kind::invalidKey};
    case 429:
        return {.kind = Kind::rateLimited};
    case 503:
    case 529:
        return {.kind = Kind::overloaded};
    default:
        return {.kind = Kind::http,
                .status = status,
                .detail = QJsonDocument::fromJson(body)[u"error"][u"message"].toString().left(
                    mostDetail)};
    }
}

ClaudeExpected<HttpRequest> ClaudeClient::prepared(QLatin1StringView path) const {
    if (key_.isEmpty())
        return claudeFailure(Kind::noKey);
    if (!isPlainKey(key_))
        return claudeFailure(Kind::invalidKey);
    const Expected<QUrl> host = cloudHost(host_);
    if (!host)
        return claudeFailure(Kind::http, host.error().message);
    return HttpRequest{
        .url = host->resolved(QUrl(QString(path))),
        .headers = {{"x-api-key", key_.toLatin1()}, {"anthropic-version", "2023-06-01"}}};
}

} // namespace quillon
