#include "Hold.h"
#include "assistant/DatesInText.h"

#include <cstddef>
#include <cstdint>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QLocale locales[] = {QLocale::c(), QLocale(QLocale::German, QLocale::Austria),
                                      QLocale(QLocale::English, QLocale::UnitedStates)};
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const QLocale& locale : locales) {
        if (const auto date = firstDate(text, locale)) {
            hold(date->isValid() && date->year() >= 1000 && date->year() <= 2999);
        }
    }
    return 0;
}
