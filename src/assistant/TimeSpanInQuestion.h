#pragma once

#include <QDateTime>
#include <QStringList>

#include <optional>

namespace quillon {

/// A span of time, the end not included. Without a start it is everything before, without an end
/// everything since.
struct AskedSpan {
    std::optional<QDateTime> from;
    std::optional<QDateTime> until;
};

struct TimeInQuestion {
    std::optional<AskedSpan> span = std::nullopt;
    bool wantsLatest = false; ///< "latest", "most recent", "just now"
    QStringList otherWords;   ///< those that say nothing about time, in their order
};

/// What the words of a question, as questionWords() gives them, say about when: "today", "this
/// morning", "last night", "this week", "on Thursday", "since March", "on 12 March", "2 days ago",
/// "in the last hour". A day, week (from Monday) or month is that of the time zone of `now`. A day
/// or month without its year is the latest that has begun; a weekday is a past one.
[[nodiscard]] TimeInQuestion timeInQuestion(const QStringList& words, const QDateTime& now);

} // namespace quillon
