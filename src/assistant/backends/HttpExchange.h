#pragma once

#include "assistant/backends/HttpClient.h"

#include <QNetworkReply>
#include <QObject>
#include <QTimer>

#include <functional>
#include <stop_token>

namespace quillon {

/// One request under way, until it is done, fails, is stopped, or takes too long. Deletes itself.
class HttpExchange final : public QObject {
public:
    using Done = std::function<void(Expected<HttpReply>)>;

    /// Takes the reply. `done` is called from the event loop, with nothing of the reply on the
    /// stack; or it is dropped when the exchange goes before that.
    HttpExchange(QNetworkReply* reply, const HttpRequest& request, Done done, QObject* parent);

private:
    void checkAnnounced();
    void readOn();
    void finished();
    void end(Expected<HttpReply> result);

    QNetworkReply* reply_;
    Done done_;
    QByteArray body_;
    QTimer patience_;
    std::stop_callback<std::function<void()>> stop_;
};

} // namespace quillon
