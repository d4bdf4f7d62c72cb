#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

namespace quillon {

/// A regular expression as a person wrote it: letter case ignored, \d, \w and \b Unicode-aware,
/// found anywhere in the subject. Every search ends within about a millisecond; one that can't be
/// carried through, a pattern that is invalid and a subject longer than `longestSubject` find
/// nothing.
///
/// Any thread. Threads that share a pattern take turns at its lock, so each does better with a
/// copy.
class TextPattern {
public:
    static constexpr qsizetype longestSubject = 4096; ///< UTF-16 units

    explicit TextPattern(const QString& pattern);
    TextPattern(const TextPattern& other);
    TextPattern(TextPattern&&) noexcept = default;
    TextPattern& operator=(const TextPattern& other);
    TextPattern& operator=(TextPattern&&) noexcept = default;
    ~TextPattern() = default;

    /// `subject` is well-formed UTF-16.
    [[nodiscard]] bool isFoundIn(QStringView subject) const;

    /// The groups 1, 2, … of the first place where it is found, those that took no part empty; no
    /// value when it isn't found.
    [[nodiscard]] std::optional<QStringList> captures(QStringView subject) const;

private:
    [[nodiscard]] QRegularExpressionMatch firstMatch(QStringView subject) const;

    QRegularExpression expression_;
    bool isValid_ = false;
};

} // namespace quillon
