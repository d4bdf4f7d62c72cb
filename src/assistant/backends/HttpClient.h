#pragma once

#include "assistant/backends/Later.h"
#include "platform/Error.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QUrl>

#include <chrono>
#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

class QNetworkAccessManager;

namespace quillon {

struct HttpRequest {
    QUrl url;
    QList<std::pair<QByteArray, QByteArray>> headers = {};
    std::optional<QByteArray> body = {};  ///< of a POST; without one it is a GET
    std::chrono::milliseconds patience{}; ///< from the first byte sent to the last received
    std::stop_token stop = {};            ///< hangs up; on the client's thread
};

struct HttpReply {
    int status = 0; ///< any: a refusal is a reply too
    QByteArray body;
};

/// What an answer may have; a longer one is given up as soon as it is known to be too long.
inline constexpr qint64 mostReplyBytes = 8 * 1024 * 1024;

/// Requests to the hosts of models. Nothing is followed or remembered, no body is sent twice, no
/// cookie is kept, and what is for this machine goes through no proxy. One event-loop thread;
/// nothing is built before the first request.
class HttpClient {
public:
    HttpClient();
    /// Requests that are under way fail in that moment.
    ~HttpClient();

    /// Fails with `timedOut`, with `invalid` for an answer that is too long, and with `io` when the
    /// request was stopped or could not be carried out. The message is the system's reason.
    [[nodiscard]] Later<Expected<HttpReply>> fetch(HttpRequest request);

private:
    QNetworkAccessManager& manager();

    std::unique_ptr<QNetworkAccessManager> manager_;
    QObject exchanges_; ///< the parent of those under way; goes before the manager does
};

} // namespace quillon
