#include "assistant/backends/LocalModels.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

bool namesElsewhere(const QString& name) {
    return name.endsWith(":cloud"_L1, Qt::CaseInsensitive) ||
           name.endsWith("-cloud"_L1, Qt::CaseInsensitive);
}

bool saysElsewhere(const QJsonObject& object) {
    return !object[u"remote_host"].toString().isEmpty() ||
           !object[u"remote_model"].toString().isEmpty();
}

std::optional<QList<LocalModel>> installedModels(const QByteArray& tags) {
    const QJsonValue list = QJsonDocument::fromJson(tags)[u"models"];
    // A server without models says null.
    if (!list.isArray() && !list.isNull())
        return std::nullopt;
    QList<LocalModel> models;
    for (const QJsonValue& value : list.toArray()) {
        const QJsonObject entry = value.toObject();
        const QString name = entry[u"name"].toString();
        if (!name.isEmpty())
            models.append({.name = name,
                           .bytes = entry[u"size"].toInteger(),
                           .isElsewhere = namesElsewhere(name) || saysElsewhere(entry)});
    }
    return models;
}

std::optional<LocalModel> findModel(const QList<LocalModel>& models, const QString& name) {
    const QString full = name.contains(u':') ? name : name + u":latest"_s;
    const auto found = std::ranges::find_if(
        models, [&](const LocalModel& model) { return model.name == name || model.name == full; });
    return found == models.end() ? std::nullopt : std::optional(*found);
}

std::optional<LocalModelDetails> modelDetails(const QByteArray& show) {
    const QJsonDocument document = QJsonDocument::fromJson(show);
    if (!document.isObject())
        return std::nullopt;
    const QJsonValue capabilities = document[u"capabilities"]; // older servers don't tell
    return LocalModelDetails{.isElsewhere = saysElsewhere(document.object()),
                             .canAnswer = !capabilities.isArray() ||
                                          capabilities.toArray().contains(u"completion"_s)};
}

} // namespace quillon
