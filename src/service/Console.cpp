#include "service/Console.h"

#include "service/ShownText.h"

namespace quillon {

void Console::say(const QString& sentence) const {
    err << "quillon: " << shownText(sentence).toStdString() << '\n';
    err.flush();
}

void Console::say(const Error& error) const {
    say(error.message);
}

} // namespace quillon
