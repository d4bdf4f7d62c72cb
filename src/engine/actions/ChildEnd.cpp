#include "engine/actions/ChildEnd.h"

namespace quillon {

namespace {

// The log keeps 500 entries and is written whole after every change.
constexpr qsizetype longestMessage = 2000;

QString durationText(std::chrono::milliseconds duration) {
    using namespace std::chrono;
    const bool wholeMinutes = duration >= minutes(1) && duration % minutes(1) == milliseconds(0);
    const auto count =
        wholeMinutes ? duration_cast<minutes>(duration).count() : ceil<seconds>(duration).count();
    const QString unit = wholeMinutes ? QStringLiteral("minute") : QStringLiteral("second");
    return QStringLiteral("%1 %2%3").arg(count).arg(unit,
                                                    count == 1 ? QString() : QStringLiteral("s"));
}

QString reason(const ProcessResult& result, std::chrono::milliseconds timeout) {
    switch (result.end) {
    case ProcessResult::End::timedOut:
        return QStringLiteral("ended after ") + durationText(timeout);
    case ProcessResult::End::signalled:
        return QStringLiteral("ended by signal %1").arg(result.status);
    case ProcessResult::End::stopped:
        return QStringLiteral("stopped");
    case ProcessResult::End::exited:
        break;
    }
    return {};
}

QString shortened(const QString& text) {
    return text.size() <= longestMessage ? text : text.left(longestMessage) + u'…';
}

} // namespace

std::optional<QString> childFailure(const Expected<ProcessResult>& result,
                                    std::chrono::milliseconds timeout) {
    if (!result)
        return result.error().message;
    if (result->succeeded())
        return std::nullopt;
    const QString why = reason(*result, timeout);
    const QString separator =
        why.isEmpty() || result->errorOutput.isEmpty() ? QString() : QStringLiteral(": ");
    return why + separator + shortened(result->errorOutput);
}

} // namespace quillon
