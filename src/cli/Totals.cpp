#include "cli/Totals.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

void Totals::add(std::size_t number, const QString& what) {
    if (number > 0)
        text_ += u", "_s + QString::number(number) + u' ' + what;
}

void Totals::addLeftAlone(std::size_t deferred, std::size_t skippedNames) {
    add(deferred, u"still settling"_s);
    add(skippedNames, u"left alone because the name is not valid UTF-8"_s);
}

} // namespace quillon
