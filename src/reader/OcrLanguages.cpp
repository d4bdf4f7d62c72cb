#include "reader/OcrLanguages.h"

#include <QDir>
#include <unicode/uloc.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostLanguages = 3;

} // namespace

QString ocrDataFolder() {
    for (const QString& folder :
         {u"/usr/share/tesseract-ocr/5/tessdata"_s, u"/usr/share/tessdata"_s}) {
        if (!QDir(folder).entryList({u"*.traineddata"_s}).isEmpty()) {
            return folder;
        }
    }
    return {};
}

QStringList ocrLanguages(const QStringList& installed, const QString& locale) {
    const QString own = QString::fromLatin1(::uloc_getISO3Language(locale.toLatin1().constData()));
    QStringList ordered{own, u"eng"_s};
    ordered += installed;
    QStringList chosen;
    for (const QString& language : ordered) {
        const bool isLanguage = language != "osd"_L1 && language != "equ"_L1;
        if (isLanguage && installed.contains(language) && !chosen.contains(language) &&
            chosen.size() < mostLanguages) {
            chosen.append(language);
        }
    }
    return chosen;
}

} // namespace quillon
