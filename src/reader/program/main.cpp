#include "platform/linux/confinement/Confinement.h"
#include "reader/Formats.h"

#include <cstdio>
#include <cstdlib>

namespace {

using namespace quillon;

enum ExitCode { done = 0, noText = 1, misused = 2, notConfined = 3 };

/// Without what no document means: control characters other than white space, and noncharacters.
QByteArray printable(const QString& text) {
    QString kept = text.left(enoughText);
    kept.removeIf([](QChar c) {
        return (c.category() == QChar::Other_Control && !c.isSpace()) || c.isNonCharacter();
    });
    return kept.toUtf8();
}

ExitCode readStandardInput(std::string_view format) {
    const std::unique_ptr<FormatReader> reader = makeReader(format);
    if (!reader) {
        return misused;
    }
    QFile file;
    if (!file.open(::fileno(stdin), QIODevice::ReadOnly)) {
        return noText;
    }
    if (!confineThisProcess()) {
        return notConfined;
    }
    const std::optional<QString> text = reader->read(file);
    if (!text) {
        return noText;
    }
    const QByteArray bytes = printable(*text);
    const bool isWritten = std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()),
                                       stdout) == static_cast<std::size_t>(bytes.size()) &&
                           std::fflush(stdout) == 0;
    return isWritten ? done : noText;
}

} // namespace

/// quillon-reader FORMAT <FILE: prints the beginning of the file's text as UTF-8.
int main(int argc, char** argv) {
    // Taking down what has been loaded would be work for nothing, and some of it is not allowed.
    std::_Exit(argc == 2 ? readStandardInput(argv[1]) : misused);
}
