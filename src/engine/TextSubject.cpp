#include "engine/TextSubject.h"

namespace quillon {

QString composed(const QString& text) {
    return text.normalized(QString::NormalizationForm_C);
}

QString folded(const QString& composedText) {
    // A capital and its accent may have no composed form where the small letter has one.
    return composed(composedText.toLower());
}

} // namespace quillon
