#pragma once

#include <QString>
#include <QStringView>

namespace quillon {

/// One text of a file in Unicode canonical composition: as it is written, and lower-cased.
/// Borrowed.
struct TextSubject {
    QStringView text;
    QStringView lower;
};

/// Canonical composition, so that a letter and its accent equal the accented letter.
[[nodiscard]] QString composed(const QString& text);

/// A composed text without its letter case, composed again.
[[nodiscard]] QString folded(const QString& composedText);

} // namespace quillon
