#include "assistant/backends/HttpClient.h"

#include "assistant/backends/BodyOnce.h"
#include "assistant/backends/HttpExchange.h"
#include "assistant/backends/ModelHost.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkRequest>

namespace quillon {

namespace {

/// The system's proxies, but none for what is to stay on this machine.
class OutsideProxies final : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        return isLoopback(query.url()) ? QList{QNetworkProxy(QNetworkProxy::NoProxy)}
                                       : systemProxyForQuery(query);
    }
};

QNetworkRequest prepared(const HttpRequest& request) {
    QNetworkRequest prepared(request.url);
    prepared.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                          QNetworkRequest::ManualRedirectPolicy);
    prepared.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    prepared.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    prepared.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // So that what is counted is what will be kept.
    prepared.setRawHeader("accept-encoding", "identity");
    for (const auto& [name, value] : request.headers)
        prepared.setRawHeader(name, value);
    return prepared;
}

QNetworkReply* post(QNetworkAccessManager& manager, QNetworkRequest request,
                    const QByteArray& body) {
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    request.setHeader(QNetworkRequest::ContentLengthHeader, body.size());
    auto once = std::make_unique<BodyOnce>(body);
    QNetworkReply* const reply = manager.post(request, once.get());
    once.release()->setParent(reply);
    return reply;
}

} // namespace

HttpClient::HttpClient() = default;

HttpClient::~HttpClient() = default;

Later<Expected<HttpReply>> HttpClient::fetch(HttpRequest request) {
    const auto start = [&](HttpExchange::Done done) {
        if (request.stop.stop_requested())
            return;
        const QNetworkRequest what = prepared(request);
        QNetworkReply* const reply =
            request.body ? post(manager(), what, *request.body) : manager().get(what);
        new HttpExchange(reply, request, std::move(done), &exchanges_);
    };
    return {start, failure(ErrorKind::io, QStringLiteral("The request was given up."))};
}

QNetworkAccessManager& HttpClient::manager() {
    if (!manager_) {
        manager_ = std::make_unique<QNetworkAccessManager>();
        manager_->setProxyFactory(new OutsideProxies);
    }
    return *manager_;
}

} // namespace quillon
