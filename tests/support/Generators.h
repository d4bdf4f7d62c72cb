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
    static Gen<QString> arbitrary();
};

template <>
struct Arbitrary<QUuid> {
    static Gen<QUuid> arbitrary();
};

/// Whole microseconds of the years 1970 to 2200.
template <>
struct Arbitrary<quillon::Timestamp> {
    static Gen<quillon::Timestamp> arbitrary();
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

template <>
struct Arbitrary<quillon::Condition> {
    static Gen<quillon::Condition> arbitrary();
};

template <>
struct Arbitrary<quillon::RuleAction> {
    static Gen<quillon::RuleAction> arbitrary();
};

template <>
struct Arbitrary<quillon::Rule> {
    static Gen<quillon::Rule> arbitrary();
};

template <>
struct Arbitrary<quillon::WatchedFolder> {
    static Gen<quillon::WatchedFolder> arbitrary();
};

template <>
struct Arbitrary<quillon::LogEntry> {
    static Gen<quillon::LogEntry> arbitrary();
};

} // namespace rc
