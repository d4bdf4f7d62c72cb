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

std::optional<std::string> Console::secretLine(const std::string& question) const {
    if (askInSecret)
        return askInSecret(question);
    std::string line;
    return std::getline(in, line) ? std::optional(line) : std::nullopt;
}

} // namespace quillon
