#pragma once

#include "model/NearestWord.h"
#include "model/RawValue.h"
#include "platform/Error.h"

#include <string>
#include <vector>

namespace quillon {

/// The case of an enumeration that a person names by its stored string or its label, in any case of
/// letters. Fails with a sentence that names the nearest.
template <typename E>
[[nodiscard]] Expected<E> namedCase(const QString& text) {
    std::vector<std::string> names;
    for (const E each : allCases<E>()) {
        if (text.compare(rawValue(each), Qt::CaseInsensitive) == 0 ||
            text.compare(label(each), Qt::CaseInsensitive) == 0)
            return each;
        names.push_back(rawValue(each).toStdString());
    }
    return failure(
        ErrorKind::invalid,
        QStringLiteral("“%1” is not %2; the nearest is “%3”")
            .arg(text, toQString(rawValueNoun<E>),
                 QString::fromStdString(nearestWord(text.toLower().toStdString(), names))));
}

} // namespace quillon
