#pragma once

#include "model/LogEntry.h"
#include "model/RawValue.h"
#include "model/WatchedFolder.h"

#include <QJsonDocument>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <ostream>

/// Arbitrary records, so that a property takes them as arguments: RC_GTEST_PROP(…, (const Rule&
/// rule)).

namespace quillon {

template <typename Record>
requires requires(const Record& record) {
    toJson(record);
}
void showValue(const Record& record, std::ostream& stream) {
    stream << QJsonDocument(toJson(record)).toJson(QJsonDocument::Indented).constData();
}

} // namespace quillon

namespace rc {

template <>
struct Arbitrary<QString> {
    /// Any text but NUL and half surrogate pairs, often with what JSON, patterns and paths treat
    /// specially.
    static Gen<QString> arbitrary() {
        const auto special =
            gen::elementOf(std::u32string(U"\"\\/%{}“”…\n\t~.é\u0301\U0001F5C2\uFFFD"));
        const auto character =
            gen::weightedOneOf<char32_t>({{4, gen::inRange<char32_t>(0x20, 0x7F)},
                                          {2, special},
                                          {1, gen::inRange<char32_t>(1, 0xD800)},
                                          {1, gen::inRange<char32_t>(0xE000, 0x110000)}});
        return gen::map(gen::scale(0.3, gen::container<std::u32string>(character)),
                        [](const std::u32string& text) {
                            return QString::fromUcs4(text.data(),
                                                     static_cast<qsizetype>(text.size()));
                        });
    }
};

template <>
struct Arbitrary<QUuid> {
    static Gen<QUuid> arbitrary() {
        return gen::map(
            gen::container<std::vector<std::uint8_t>>(16, gen::arbitrary<std::uint8_t>()),
            [](const std::vector<std::uint8_t>& bytes) {
                return QUuid::fromRfc4122(
                    QByteArray(reinterpret_cast<const char*>(bytes.data()), 16));
            });
    }
};

/// Whole microseconds of the years 1970 to 2200.
template <>
struct Arbitrary<quillon::Timestamp> {
    static Gen<quillon::Timestamp> arbitrary() {
        constexpr std::int64_t year2200 = 7'258'118'400;
        return gen::map(gen::inRange<std::int64_t>(0, year2200 * 1'000'000),
                        [](std::int64_t micros) {
                            return quillon::Timestamp{std::chrono::microseconds{micros}};
                        });
    }
};

template <typename E>
requires(!quillon::rawValues<E>.empty()) struct Arbitrary<E> {
    static Gen<E> arbitrary() { return gen::elementOf(quillon::allCases<E>()); }
};

template <typename T>
struct Arbitrary<std::optional<T>> {
    static Gen<std::optional<T>> arbitrary() {
        return gen::map(gen::maybe(gen::arbitrary<T>()), [](const Maybe<T>& value) {
            return value ? std::optional<T>(*value) : std::nullopt;
        });
    }
};

/// Up to three.
template <typename T>
Gen<std::vector<T>> few() {
    return gen::mapcat(gen::inRange<std::size_t>(0, 4), [](std::size_t count) {
        return gen::container<std::vector<T>>(count, gen::arbitrary<T>());
    });
}

template <typename T>
requires requires(const T& record) {
    toJson(record);
}
struct Arbitrary<std::vector<T>> {
    static Gen<std::vector<T>> arbitrary() { return few<T>(); }
};

/// Arbitrary values for the fields named.
template <typename Record, typename... Fields>
Gen<Record> record(Fields Record::*... fields) {
    return gen::build<Record>(gen::set(fields)...);
}

template <>
struct Arbitrary<quillon::Condition> {
    static auto arbitrary() {
        using T = quillon::Condition;
        return record(&T::id, &T::attribute, &T::op, &T::value, &T::unit);
    }
};

template <>
struct Arbitrary<quillon::RuleAction> {
    static auto arbitrary() {
        using T = quillon::RuleAction;
        return record(&T::id, &T::type, &T::destination, &T::renamePattern, &T::tag, &T::sortBy,
                      &T::keepOriginal, &T::scriptCommand, &T::shortcutName);
    }
};

template <>
struct Arbitrary<quillon::Rule> {
    static auto arbitrary() {
        using T = quillon::Rule;
        return record(&T::id, &T::name, &T::isEnabled, &T::matchMode, &T::conditions, &T::actions);
    }
};

template <>
struct Arbitrary<quillon::WatchedFolder> {
    static auto arbitrary() {
        using T = quillon::WatchedFolder;
        return record(&T::id, &T::path, &T::isWatching, &T::rules, &T::colorIndex, &T::isRecursive,
                      &T::onlyNewFiles, &T::skipOnlineOnly, &T::symbolName, &T::schedule);
    }
};

template <>
struct Arbitrary<quillon::LogEntry> {
    static auto arbitrary() {
        using T = quillon::LogEntry;
        return record(&T::id, &T::date, &T::fileName, &T::ruleName, &T::actionSummary,
                      &T::folderName, &T::folderID, &T::isError, &T::undoable, &T::originalPath,
                      &T::currentPath, &T::trashedPath, &T::batchID);
    }
};

} // namespace rc
