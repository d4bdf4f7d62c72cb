#include "model/Uuid.h"

namespace quillon {

QString uuidText(const QUuid& id) {
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> uuidFromText(const QString& text) {
    // Qt reads braces and passes over trailing text, and answers nonsense with the null id.
    const QUuid id = QUuid::fromString(text);
    if (id.toString(QUuid::WithoutBraces).compare(text, Qt::CaseInsensitive) != 0)
        return std::nullopt;
    return id;
}

} // namespace quillon
