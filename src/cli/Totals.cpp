#include "cli/Totals.h"

#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

void Totals::add(std::size_t number, const QString& what) {
    if (number > 0)
        text_ += u", "_s + QString::number(number) + u' ' + what;
}

void Totals::addLeftAlone(const ReadyFiles& ready) {
    add(ready.deferred, u"still settling"_s);
    add(ready.skippedNames, u"left alone because the name is not valid UTF-8"_s);
}

} // namespace quillon
