#include "assistant/backends/ModelHost.h"

#include <QHostAddress>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A scheme, a host, perhaps a port, and nothing else.
bool isHost(const QUrl& url) {
    const bool isWeb = url.scheme() == "https"_L1 || url.scheme() == "http"_L1;
    const bool hasMore = !url.userInfo().isEmpty() || url.hasQuery() || url.hasFragment() ||
                         (!url.path().isEmpty() && url.path() != "/"_L1);
    return url.isValid() && isWeb && !url.host().isEmpty() && !hasMore;
}

} // namespace

bool isLoopback(const QUrl& url) {
    return url.host() == "localhost"_L1 || QHostAddress(url.host()).isLoopback();
}

Expected<QUrl> cloudHost(const QString& setting) {
    const QUrl url(setting.trimmed(), QUrl::StrictMode);
    if (isHost(url) && (url.scheme() == "https"_L1 || isLoopback(url)))
        return url;
    return failure(ErrorKind::invalid,
                   u"Dobbin doesn't send your key to “%1”. Set ai.claudeHost to an address that "
                   u"starts with https:// and has nothing after the host."_s.arg(setting));
}

Expected<QUrl> localHost(const QString& setting) {
    const QUrl url(setting.trimmed(), QUrl::StrictMode);
    if (isHost(url) && isLoopback(url))
        return url;
    return failure(ErrorKind::invalid,
                   u"“%1” isn't on this computer. Set ai.localHost to an address like "
                   u"http://127.0.0.1:11434."_s.arg(setting));
}

} // namespace quillon
