#include "assistant/backends/HttpExchange.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 readBuffer = 1024 * 1024; // what may come while this thread is busy

/// Whether the server has answered, be it with a refusal: from 201 on errors stand for its status,
/// but for one that says that what it sent isn't the protocol.
bool isAnswer(QNetworkReply::NetworkError error) {
    return error == QNetworkReply::NoError ||
           (error >= QNetworkReply::ContentAccessDenied && error != QNetworkReply::ProtocolFailure);
}

} // namespace

HttpExchange::HttpExchange(QNetworkReply* reply, const HttpRequest& request, Done done,
                           QObject* parent)
    : QObject(parent)
    , reply_(reply)
    , done_(std::move(done))
    , stop_(request.stop, [this] { end(failure(ErrorKind::io, u"The request was given up."_s)); }) {
    reply_->setParent(this);
    reply_->setReadBufferSize(readBuffer);
    connect(reply_, &QNetworkReply::metaDataChanged, this, &HttpExchange::checkAnnounced);
    connect(reply_, &QNetworkReply::readyRead, this, &HttpExchange::readOn);
    connect(reply_, &QNetworkReply::finished, this, &HttpExchange::finished);
    patience_.setSingleShot(true);
    connect(&patience_, &QTimer::timeout, this,
            [this] { end(failure(ErrorKind::timedOut, u"The request timed out."_s)); });
    patience_.start(request.patience);
}

void HttpExchange::checkAnnounced() {
    if (reply_->header(QNetworkRequest::ContentLengthHeader).toLongLong() > mostReplyBytes)
        end(failure(ErrorKind::invalid, u"The answer is too long."_s));
}

void HttpExchange::readOn() {
    body_ += reply_->readAll();
    if (body_.size() > mostReplyBytes)
        end(failure(ErrorKind::invalid, u"The answer is too long."_s));
}

void HttpExchange::finished() {
    readOn();
    if (!reply_)
        return;
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status != 0 && isAnswer(reply_->error()))
        end(HttpReply{.status = status, .body = body_});
    else
        end(failure(ErrorKind::io, reply_->errorString()));
}

/// Only the first end counts.
void HttpExchange::end(Expected<HttpReply> result) {
    if (!reply_)
        return;
    patience_.stop();
    disconnect(reply_, nullptr, this, nullptr);
    reply_->abort();
    reply_ = nullptr;
    QMetaObject::invokeMethod(
        this,
        [this, result = std::move(result)]() mutable {
            deleteLater();
            const Done done = std::move(done_); // which may take this with it
            done(std::move(result));
        },
        Qt::QueuedConnection);
}

} // namespace quillon
