#include "store/UnreadableFile.h"

#include "store/Sentences.h"

#include <QDateTime>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

QString dateForName(Timestamp now) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(now).time_since_epoch();
    return QDateTime::fromSecsSinceEpoch(seconds.count()).toString(u"yyyy-MM-dd-HHmmss");
}

} // namespace

Expected<QString> keepUnreadable(Storage& storage, const std::string& path, const Error& reason,
                                 Timestamp now) {
    if (reason.kind == ErrorKind::io)
        return failedTo(u"%1 can't be read"_s.arg(pathText(path)), reason);
    const std::string wanted = path + ".unreadable-" + dateForName(now).toStdString();
    const Expected<std::string> kept = storage.keepAside(path, wanted);
    if (!kept)
        return failure(kept.error().kind,
                       u"%1 can't be read (%2) and can't be kept aside: %3"_s.arg(
                           pathText(path), reason.message, kept.error().message));
    return u"%1 can't be read (%2). It is kept as %3"_s.arg(pathText(path), reason.message,
                                                            pathText(*kept));
}

} // namespace quillon
