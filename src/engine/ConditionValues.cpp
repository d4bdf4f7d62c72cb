#include "engine/ConditionValues.h"

#include <QDateTime>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace quillon {
namespace {

/// Unsigned, without a base prefix.
std::optional<double> unsignedNumber(std::string_view digits, std::chars_format format) {
    if (digits.empty() || digits.front() == '-')
        return std::nullopt;
    double value = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value, format);
    if (error != std::errc{} || stop != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

/// `longest` digits at most, and at least `shortest`.
std::optional<int> digitsOf(QStringView text, qsizetype shortest, qsizetype longest) {
    if (text.size() < shortest || text.size() > longest)
        return std::nullopt;
    int value = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return std::nullopt;
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

} // namespace

std::optional<double> parsedNumber(QStringView text) {
    const QByteArray bytes = text.toUtf8();
    std::string_view digits(bytes.data(), static_cast<std::size_t>(bytes.size()));
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+'))
        digits.remove_prefix(1);
    auto format = std::chars_format::general;
    if (digits.starts_with("0x") || digits.starts_with("0X")) {
        digits.remove_prefix(2);
        format = std::chars_format::hex;
    }
    const std::optional<double> value = unsignedNumber(digits, format);
    return value && negative ? -*value : value;
}

std::optional<Timestamp> parsedDay(QStringView text) {
    const QList<QStringView> parts = text.split(u'-');
    if (parts.size() != 3)
        return std::nullopt;
    const auto year = digitsOf(parts[0], 4, 4);
    const auto month = digitsOf(parts[1], 1, 2);
    const auto day = digitsOf(parts[2], 1, 2);
    if (!year || !month || !day)
        return std::nullopt;
    const QDateTime start = QDate(*year, *month, *day).startOfDay();
    if (!start.isValid())
        return std::nullopt;
    using std::chrono::milliseconds;
    return Timestamp(std::clamp(milliseconds(start.toMSecsSinceEpoch()),
                                std::chrono::ceil<milliseconds>(Timestamp::duration::min()),
                                std::chrono::floor<milliseconds>(Timestamp::duration::max())));
}

Timestamp::duration clampedNanoseconds(double nanoseconds) {
    using Limits = std::numeric_limits<Timestamp::rep>;
    // As a double the greatest count rounds up to one too many.
    if (nanoseconds >= static_cast<double>(Limits::max()))
        return Timestamp::duration::max();
    if (nanoseconds <= static_cast<double>(Limits::min()))
        return Timestamp::duration::min();
    return Timestamp::duration(static_cast<Timestamp::rep>(nanoseconds));
}

} // namespace quillon
