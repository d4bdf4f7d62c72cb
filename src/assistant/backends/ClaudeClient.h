#pragma once

#include "assistant/AIRequest.h"
#include "assistant/backends/ClaudeError.h"
#include "assistant/backends/ClaudeModel.h"
#include "assistant/backends/HttpClient.h"

#include <QByteArray>
#include <QCoroTask>
#include <QString>

#include <chrono>
#include <cstdint>
#include <expected>

namespace quillon {

template <typename T>
using ClaudeExpected = std::expected<T, ClaudeError>;

/// Asks Claude over the network. A value: what a request needs is taken along when it is made. The
/// key goes to the host alone, in a header, and into no error.
class ClaudeClient {
public:
    struct Reply {
        QString text; ///< of all text blocks
        std::int64_t inputTokens = 0;
        std::int64_t outputTokens = 0;

        bool operator==(const Reply&) const = default;
    };

    struct Request {
        ClaudeModel model = ClaudeModel::sonnet;
        QString system;
        QList<AIMessage> messages;
        int maxTokens = 0;
        std::optional<QByteArray> schema; ///< JSON text
        QString effort;                   ///< "low"
        std::stop_token stop = {};
    };

    struct Patience {
        std::chrono::milliseconds send = std::chrono::seconds(90);
        std::chrono::milliseconds verify = std::chrono::seconds(60);
    };

    /// Borrows the HTTP client; `host` is the text of a setting, and one that would not keep the
    /// key safe fails each request without making it.
    ClaudeClient(HttpClient& http, QString host, QString key, Patience patience)
        : http_(http), host_(std::move(host)), key_(std::move(key)), patience_(patience) {}

    [[nodiscard]] QCoro::Task<ClaudeExpected<Reply>> send(Request request) const;

    /// Succeeds when the service accepts the key.
    [[nodiscard]] QCoro::Task<ClaudeExpected<void>> verifyKey() const;

    /// What an answer of the service means.
    [[nodiscard]] static ClaudeExpected<Reply> parse(const QByteArray& body, int status);
    [[nodiscard]] static ClaudeError error(int status, const QByteArray& body);

private:
    /// The request as far as both have it in common; the path may have a query.
    [[nodiscard]] ClaudeExpected<HttpRequest> prepared(QLatin1StringView path) const;

    HttpClient& http_;
    QString host_;
    QString key_;
    Patience patience_;
};

} // namespace quillon
