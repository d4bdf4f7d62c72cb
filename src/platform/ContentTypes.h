#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

/// The machine's database of content types. Any thread.
class ContentTypes {
public:
    virtual ~ContentTypes() = default;

    /// The MIME type that the name alone tells, followed by every type it conforms to, nearest
    /// first. Empty when the name tells nothing. Never opens a file.
    [[nodiscard]] virtual QStringList conformance(const QString& fileName) const = 0;
};

} // namespace quillon
