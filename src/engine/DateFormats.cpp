#include "engine/DateFormats.h"

#include <QHash>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

namespace quillon {

struct DateFormats::Formats {
    std::unique_ptr<icu::TimeZone> zone{icu::TimeZone::detectHostTimeZone()};
    std::unordered_map<QString, std::unique_ptr<icu::SimpleDateFormat>> byPattern;
    std::unique_ptr<icu::SimpleDateFormat> month;
};

namespace {

icu::UnicodeString toIcu(const QString& text) {
    return icu::UnicodeString(reinterpret_cast<const char16_t*>(text.utf16()),
                              static_cast<int32_t>(text.size()));
}

/// Null when ICU refuses.
std::unique_ptr<icu::SimpleDateFormat> makeFormat(const QString& pattern, const icu::Locale& locale,
                                                  const icu::TimeZone* zone) {
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(toIcu(pattern), locale, status);
    if (U_FAILURE(status))
        return nullptr;
    if (zone)
        format->setTimeZone(*zone);
    return format;
}

std::optional<QString> formatted(const icu::DateFormat* format, Timestamp time) {
    if (!format)
        return std::nullopt;
    const auto moment = std::chrono::floor<std::chrono::milliseconds>(time).time_since_epoch();
    icu::UnicodeString text;
    UErrorCode status = U_ZERO_ERROR;
    format->format(static_cast<UDate>(moment.count()), text, nullptr, status);
    if (U_FAILURE(status))
        return std::nullopt;
    return QString::fromUtf16(text.getBuffer(), text.length());
}

} // namespace

DateFormats::DateFormats() : formats_(std::make_unique<Formats>()) {}
DateFormats::~DateFormats() = default;

std::optional<QString> DateFormats::format(const QString& pattern, Timestamp time) {
    auto [found, isNew] = formats_->byPattern.try_emplace(pattern);
    if (isNew)
        found->second = makeFormat(pattern, icu::Locale("en_US_POSIX"), formats_->zone.get());
    return formatted(found->second.get(), time);
}

QString DateFormats::month(Timestamp time) {
    const QString pattern = QStringLiteral("yyyy-MM");
    if (!formats_->month)
        formats_->month = makeFormat(pattern, icu::Locale::getDefault(), formats_->zone.get());
    if (std::optional<QString> text = formatted(formats_->month.get(), time))
        return *text;
    return format(pattern, time).value_or(pattern);
}

QString DateFormats::dateAndTime(Timestamp time, const QString& locale) {
    const icu::Locale chosen =
        locale.isEmpty() ? icu::Locale::getDefault() : icu::Locale(locale.toUtf8().constData());
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateTimeInstance(
        icu::DateFormat::kMedium, icu::DateFormat::kMedium, chosen));
    if (format && formats_->zone)
        format->setTimeZone(*formats_->zone);
    const QString plain = QStringLiteral("yyyy-MM-dd HH:mm:ss");
    return formatted(format.get(), time)
        .or_else([&] { return this->format(plain, time); })
        .value_or(plain);
}

} // namespace quillon
