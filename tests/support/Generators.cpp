#include "support/Generators.h"

namespace rc {
namespace {

/// Arbitrary values for the fields named.
template <typename Record, typename... Fields>
Gen<Record> record(Fields Record::*... fields) {
    return gen::build<Record>(gen::set(fields)...);
}

} // namespace

Gen<QString> Arbitrary<QString>::arbitrary() {
    const auto special =
        gen::elementOf(std::u32string(U"\"\\/%{}“”…\n\t~.é\u0301\U0001F5C2\uFFFD"));
    const auto character =
        gen::weightedOneOf<char32_t>({{4, gen::inRange<char32_t>(0x20, 0x7F)},
                                      {2, special},
                                      {1, gen::inRange<char32_t>(1, 0xD800)},
                                      {1, gen::inRange<char32_t>(0xE000, 0x110000)}});
    return gen::map(gen::scale(0.3, gen::container<std::u32string>(character)),
                    [](const std::u32string& text) {
                        return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
                    });
}

Gen<QUuid> Arbitrary<QUuid>::arbitrary() {
    return gen::map(gen::container<std::vector<std::uint8_t>>(16, gen::arbitrary<std::uint8_t>()),
                    [](const std::vector<std::uint8_t>& bytes) {
                        return QUuid::fromRfc4122(
                            QByteArray(reinterpret_cast<const char*>(bytes.data()), 16));
                    });
}

Gen<quillon::Timestamp> Arbitrary<quillon::Timestamp>::arbitrary() {
    constexpr std::int64_t year2200 = 7'258'118'400;
    return gen::map(gen::inRange<std::int64_t>(0, year2200 * 1'000'000), [](std::int64_t micros) {
        return quillon::Timestamp{std::chrono::microseconds{micros}};
    });
}

Gen<quillon::Condition> Arbitrary<quillon::Condition>::arbitrary() {
    using T = quillon::Condition;
    return record(&T::id, &T::attribute, &T::op, &T::value, &T::unit);
}

Gen<quillon::RuleAction> Arbitrary<quillon::RuleAction>::arbitrary() {
    using T = quillon::RuleAction;
    return record(&T::id, &T::type, &T::destination, &T::renamePattern, &T::tag, &T::sortBy,
                  &T::keepOriginal, &T::scriptCommand, &T::shortcutName);
}

Gen<quillon::Rule> Arbitrary<quillon::Rule>::arbitrary() {
    using T = quillon::Rule;
    return record(&T::id, &T::name, &T::isEnabled, &T::matchMode, &T::conditions, &T::actions);
}

Gen<quillon::WatchedFolder> Arbitrary<quillon::WatchedFolder>::arbitrary() {
    using T = quillon::WatchedFolder;
    return record(&T::id, &T::path, &T::isWatching, &T::rules, &T::colorIndex, &T::isRecursive,
                  &T::onlyNewFiles, &T::skipOnlineOnly, &T::symbolName, &T::schedule);
}

Gen<quillon::LogEntry> Arbitrary<quillon::LogEntry>::arbitrary() {
    using T = quillon::LogEntry;
    return record(&T::id, &T::date, &T::fileName, &T::ruleName, &T::actionSummary, &T::folderName,
                  &T::folderID, &T::isError, &T::undoable, &T::originalPath, &T::currentPath,
                  &T::trashedPath, &T::batchID);
}

} // namespace rc
