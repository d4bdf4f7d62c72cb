#pragma once

#include "platform/Settings.h"

#include <QString>

#include <cstdint>
#include <span>
#include <string_view>

namespace quillon {

enum class SettingType : std::uint8_t { truth, number, text };

struct Setting {
    std::u16string_view key;
    SettingType type;
    std::u16string_view defaultValue; ///< "true", "5", "…": as stored
    std::u16string_view meaning;      ///< one line for people
    bool isShown = true;              ///< a person may set it; otherwise it is our own bookkeeping
    std::span<const std::u16string_view> choices = {}; ///< of a text that can't be just anything
};

/// Every setting there is, in the order in which people see them.
[[nodiscard]] std::span<const Setting> settingsTable();

/// Nothing when there is no such setting.
[[nodiscard]] const Setting* findSetting(QStringView key);

/// The stored value in the form of its type ("true", "5"), or the default where none is stored or
/// what is stored is none of that type.
[[nodiscard]] QString settingText(const Settings& settings, const Setting& setting);
[[nodiscard]] bool settingTruth(const Settings& settings, QStringView key);

/// Stores a value that a person has typed. Fails with `invalid` and a sentence that names the valid
/// ones.
[[nodiscard]] Expected<void> setSetting(Settings& settings, const Setting& setting,
                                        const QString& typed);

} // namespace quillon
