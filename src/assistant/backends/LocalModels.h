#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <optional>

namespace quillon {

/// A model as the local server lists it.
struct LocalModel {
    QString name;             ///< "llama3.2:latest"
    qint64 bytes = 0;         ///< on disk
    bool isElsewhere = false; ///< the server would send what it is asked to another machine

    bool operator==(const LocalModel&) const = default;
};

/// Whether a model of that name is run by another machine: "gpt-oss:120b-cloud".
[[nodiscard]] bool namesElsewhere(const QString& name);

/// From the body of /api/tags, in its order; nothing when it is no such body.
[[nodiscard]] std::optional<QList<LocalModel>> installedModels(const QByteArray& tags);

/// The model with that name; one without a tag means the tag "latest".
[[nodiscard]] std::optional<LocalModel> findModel(const QList<LocalModel>& models,
                                                  const QString& name);

/// What /api/show says about one model.
struct LocalModelDetails {
    bool isElsewhere = false;
    bool canAnswer = true; ///< rather than only search or compare
};

[[nodiscard]] std::optional<LocalModelDetails> modelDetails(const QByteArray& show);

/// Whether an object of the server's says that another machine is behind it.
[[nodiscard]] bool saysElsewhere(const QJsonObject& object);

} // namespace quillon
