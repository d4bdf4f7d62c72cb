#include "platform/linux/AutostartEntry.h"

#include "platform/FileNames.h"

#include <QList>

namespace quillon {
namespace {

constexpr std::uint64_t largestEntry = 64 << 10;

/// As an entry's "Exec" has a path: quoted, and what means something within quotes escaped, once
/// for the quotes and once for the entry's own strings.
QByteArray quotedProgram(const std::string& path) {
    QByteArray quoted = "\"";
    for (const char byte : path) {
        if (byte == '\\')
            quoted += "\\\\\\\\";
        else if (byte == '"' || byte == '`' || byte == '$')
            quoted += QByteArray("\\\\") + byte;
        else if (byte == '%')
            quoted += "%%";
        else
            quoted += byte;
    }
    return quoted + '"';
}

/// Whether the lines of the entry itself, which come before those of its actions, have this one.
bool hasLine(const QByteArray& entry, const QByteArray& key, const QByteArray& value) {
    bool isWithin = false;
    for (const QByteArray& line : entry.split('\n')) {
        const QByteArray text = line.trimmed();
        if (text.startsWith('['))
            isWithin = text == "[Desktop Entry]";
        const qsizetype equals = text.indexOf('=');
        if (isWithin && equals > 0 && text.first(equals).trimmed() == key)
            return text.sliced(equals + 1).trimmed().toLower() == value;
    }
    return false;
}

} // namespace

AutostartEntry::AutostartEntry(Storage& storage, FileSystem& fileSystem,
                               const std::string& configHome, std::string program)
    : storage_(storage)
    , fileSystem_(fileSystem)
    , folder_(joinPath(configHome, "autostart"))
    , path_(joinPath(folder_, "quillon.desktop"))
    , program_(std::move(program)) {}

bool AutostartEntry::isOn() const {
    const auto entry = storage_.readWhole(path_, largestEntry);
    return entry && !hasLine(*entry, "Hidden", "true") &&
           !hasLine(*entry, "X-GNOME-Autostart-enabled", "false");
}

Expected<void> AutostartEntry::setOn(bool on) {
    if (!on)
        return storage_.remove(path_);
    if (auto made = fileSystem_.makeFolders(folder_); !made)
        return made;
    return storage_.writeDurably(path_, "[Desktop Entry]\n"
                                        "Type=Application\n"
                                        "Name=Quillon\n"
                                        "Icon=quillon\n"
                                        "Exec=" +
                                            quotedProgram(program_) +
                                            "\n"
                                            "X-GNOME-Autostart-enabled=true\n");
}

} // namespace quillon
