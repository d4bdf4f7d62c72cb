#include "assistant/backends/ModelLibrary.h"

#include "assistant/backends/HttpClient.h"
#include "assistant/backends/ModelHost.h"
#include "assistant/backends/OnDeviceModel.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

QCoro::Task<ModelLibrary> lookAtModels(QString host, QString chosen) {
    HttpClient http;
    const OnDeviceModel::Patience patience;
    const OnDeviceModel model(http, host, patience);
    ModelLibrary library;
    library.state = co_await model.look(std::move(chosen));
    const Expected<QUrl> url = localHost(host);
    if (!url || library.state.kind == LocalModelState::Kind::serverAbsent)
        co_return library;
    HttpRequest request{.url = url->resolved(QUrl(u"/api/tags"_s)), .patience = patience.look};
    const Expected<HttpReply> reply = co_await http.fetch(std::move(request));
    if (reply)
        library.installed = installedModels(reply->body).value_or(QList<LocalModel>());
    co_return library;
}

} // namespace quillon
