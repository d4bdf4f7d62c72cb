#pragma once

#include "assistant/AIRequest.h"
#include "platform/Error.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillon {

// What is asked of a model about files. `facts` is what FileText says of each; the files are called
// f1, f2, … in that order.

[[nodiscard]] AIRequest verdictRequest(const QString& question, const QStringList& facts);
[[nodiscard]] AIRequest nameRequest(const QStringList& facts);

/// The message of a verdict request.
[[nodiscard]] QString judgePrompt(const QString& question, const QStringList& facts);

/// What was said of each of `count` files, in their order, in the list of that name of a model's
/// answer. An answer about a file that was not asked about is passed over, and so is a second one
/// about the same file. Fails with `invalid` when there is no such list.
[[nodiscard]] Expected<std::vector<std::optional<QJsonObject>>>
mapByID(const QString& answer, const QString& list, std::size_t count);

} // namespace quillon
