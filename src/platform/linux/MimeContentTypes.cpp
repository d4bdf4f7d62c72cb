#include "platform/linux/MimeContentTypes.h"

namespace quillon {

QStringList MimeContentTypes::conformance(const QString& fileName) const {
    const QMimeType type = database_.mimeTypeForFile(fileName, QMimeDatabase::MatchExtension);
    if (!type.isValid() || type.isDefault()) {
        return {};
    }
    QStringList types = type.allAncestors();
    types.prepend(type.name());
    // Everything is bytes: that says nothing.
    types.removeAll(QStringLiteral("application/octet-stream"));
    return types;
}

} // namespace quillon
