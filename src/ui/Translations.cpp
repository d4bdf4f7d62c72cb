#include "ui/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

void installTranslations(QCoreApplication& application) {
    // The one that is installed last is asked first.
    for (const QLocale& locale : std::array{QLocale(QLocale::English), QLocale()}) {
        auto* const catalogue = new QTranslator(&application);
        if (catalogue->load(locale, u"quillon"_s, u"_"_s, u":/translations"_s))
            QCoreApplication::installTranslator(catalogue);
        else
            delete catalogue;
    }
}

} // namespace quillon
