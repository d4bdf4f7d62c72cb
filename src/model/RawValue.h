#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

/// The stored strings of an enumeration in declared order, specialised beside each enumeration.
/// Where a raw value is an English phrase it is also the label shown to people.
template <typename E>
inline constexpr std::array<std::u16string_view, 0> rawValues{};

/// What one case is called in an error, with its article: "an operator".
template <typename E>
inline constexpr std::u16string_view rawValueNoun{};

[[nodiscard]] inline QString toQString(std::u16string_view text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

template <typename E>
[[nodiscard]] QString rawValue(E value) {
    return toQString(rawValues<E>[static_cast<std::size_t>(value)]);
}

template <typename E>
[[nodiscard]] std::optional<E> fromRawValue(QStringView text) {
    for (std::size_t i = 0; i < rawValues<E>.size(); ++i)
        if (text == QStringView(rawValues<E>[i].data(), qsizetype(rawValues<E>[i].size())))
            return static_cast<E>(i);
    return std::nullopt;
}

/// Every case in declared order.
template <typename E>
[[nodiscard]] std::vector<E> allCases() {
    std::vector<E> cases;
    for (std::size_t i = 0; i < rawValues<E>.size(); ++i)
        cases.push_back(static_cast<E>(i));
    return cases;
}

} // namespace quillon
