#include "assistant/backends/PullStream.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestLine = 1 << 20;
constexpr qsizetype longestReason = 300;        // characters
constexpr qint64 largestPart = qint64(1) << 50; // so that no sum of what a server claims overflows
constexpr qsizetype mostParts = 4096;

} // namespace

QString pullError(const QByteArray& json) {
    return QJsonDocument::fromJson(json)[u"error"].toString().simplified().left(longestReason);
}

Expected<void> PullStream::add(const QByteArray& bytes) {
    rest_ += bytes;
    for (qsizetype end = rest_.indexOf('\n'); end >= 0; end = rest_.indexOf('\n')) {
        const QByteArray line = rest_.left(end).trimmed();
        rest_.remove(0, end + 1);
        if (line.isEmpty())
            continue;
        if (auto taken = takeLine(line); !taken)
            return taken;
    }
    if (rest_.size() > longestLine)
        return failure(ErrorKind::invalid, u"what it says can't be understood"_s);
    return {};
}

Expected<void> PullStream::takeLine(const QByteArray& line) {
    const QJsonDocument document = QJsonDocument::fromJson(line);
    if (!document.isObject())
        return failure(ErrorKind::invalid, u"what it says can't be understood"_s);
    if (document.object().contains(u"error"_s))
        return failure(ErrorKind::io, pullError(line));
    isComplete_ = document[u"status"].toString() == u"success";
    const qint64 total = std::min(document[u"total"].toInteger(), largestPart);
    const QString digest = document[u"digest"].toString();
    if (total <= 0 || (parts_.size() >= mostParts && !parts_.contains(digest)))
        return {};
    // A part never shrinks: the server starts to count anew when it tries one again.
    PullProgress& part = parts_[digest];
    part.total = total;
    part.done =
        std::max(part.done, std::clamp(document[u"completed"].toInteger(), qint64(0), total));
    progress_ = {};
    for (const PullProgress& each : std::as_const(parts_)) {
        progress_.done += each.done;
        progress_.total += each.total;
    }
    return {};
}

} // namespace quillon
