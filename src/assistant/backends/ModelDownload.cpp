#include "assistant/backends/ModelDownload.h"

#include "assistant/backends/ModelHost.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkProxy>
#include <QNetworkRequest>

#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int accepted = 200;
constexpr qint64 mostErrorBytes = 1 << 16;

} // namespace

ModelDownload::ModelDownload(const QString& host, QString name, Listener listener,
                             std::chrono::milliseconds patience)
    : name_(std::move(name)), listener_(std::move(listener)) {
    manager_.setProxy(QNetworkProxy::NoProxy);
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    QObject::connect(&patience_, &QTimer::timeout, &patience_, [this] {
        end(failure(ErrorKind::timedOut, u"The local server doesn't go on with the download; "
                                         "restart it, and begin again"_s));
    });
    if (const Expected<QUrl> url = localHost(host))
        ask(*url);
    else
        QMetaObject::invokeMethod(
            &patience_, [this, error = url.error()] { end(std::unexpected(error)); },
            Qt::QueuedConnection);
}

ModelDownload::~ModelDownload() {
    if (!reply_)
        return;
    reply_->disconnect(&patience_);
    reply_->abort();
}

void ModelDownload::ask(const QUrl& host) {
    QNetworkRequest request(host.resolved(QUrl(u"/api/pull"_s)));
    request.setRawHeader("content-type", "application/json");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    const QJsonObject body{{u"model"_s, name_}, {u"stream"_s, true}};
    reply_ = manager_.post(request, QJsonDocument(body).toJson(QJsonDocument::Compact));
    QObject::connect(reply_, &QNetworkReply::readyRead, &patience_, [this] { readOn(); });
    QObject::connect(reply_, &QNetworkReply::finished, &patience_, [this] { finished(); });
    patience_.start();
}

void ModelDownload::readOn() {
    if (!listener_.done)
        return;
    if (reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != accepted) {
        // What is wrong is told in the end, or once there is more of it than anybody would say.
        if (reply_->bytesAvailable() >= mostErrorBytes)
            refused();
        return;
    }
    patience_.start();
    const PullProgress before = stream_.progress();
    if (const auto added = stream_.add(reply_->readAll()); !added)
        return end(failure(added.error().kind, u"The model “%1” can't be downloaded: %2"_s.arg(
                                                   name_, added.error().message)));
    if (stream_.progress() != before)
        listener_.progressed(stream_.progress());
}

void ModelDownload::finished() {
    readOn();
    if (!listener_.done)
        return;
    if (stream_.isComplete())
        return end({});
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 0)
        return end(
            failure(ErrorKind::notFound,
                    u"No local server answers at %1; install Ollama, or start it with "
                    "“ollama serve”"_s.arg(reply_->url().adjusted(QUrl::RemovePath).toString())));
    if (status != accepted)
        return refused();
    end(failure(ErrorKind::io,
                u"The download ended early; the next one goes on where it stopped"_s));
}

void ModelDownload::refused() {
    const QString told = pullError(reply_->read(mostErrorBytes));
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QString reason =
        told.isEmpty() ? u"the local server answers with %1"_s.arg(status) : told;
    end(failure(ErrorKind::io, u"The model “%1” can't be downloaded: %2"_s.arg(name_, reason)));
}

void ModelDownload::end(Expected<void> result) {
    patience_.stop();
    const auto done = std::exchange(listener_.done, {});
    if (reply_)
        reply_->abort(); // or else it would go on filling the memory
    if (done)
        done(std::move(result));
}

} // namespace quillon
