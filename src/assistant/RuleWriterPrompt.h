#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quillon {

/// What teaches a model to write a rule for one folder.
[[nodiscard]] QString ruleWriterPrompt(const QString& folderName,
                                       const QStringList& otherFolderNames);

/// The JSON Schema of its answer. Its order counts; see AIRequest::schema.
[[nodiscard]] QByteArray ruleWriterSchema();

} // namespace quillon
