#pragma once

#include "platform/ContentTypes.h"

#include <QMimeDatabase>

namespace quillon {

/// The shared MIME database, and Qt's own copy of it where the machine has none. It is loaded by
/// the first question, not when this is made.
class MimeContentTypes : public ContentTypes {
public:
    [[nodiscard]] QStringList conformance(const QString& fileName) const override;

private:
    QMimeDatabase database_;
};

} // namespace quillon
