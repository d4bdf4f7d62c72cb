#include "cli/NewFile.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

Chosen<void> writeNewFile(const std::string& path, const QByteArray& bytes, const QString& what,
                          const QString& name, Services& services) {
    const auto written = services.storage().writeNewDurably(path, bytes);
    if (written)
        return {};
    if (written.error().kind == ErrorKind::alreadyExists)
        return refusal(
            ExitCode::someFailed,
            u"%1 is there already, and nothing is overwritten; give another name"_s.arg(name));
    return refusal(ExitCode::someFailed,
                   u"%1 can't be written to %2: %3"_s.arg(what, name, written.error().message));
}

} // namespace quillon
