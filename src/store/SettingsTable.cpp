#include "store/SettingsTable.h"

#include "model/RawValue.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array claudeModels = std::to_array<std::u16string_view>(
    {u"claude-sonnet-5-5", u"claude-haiku-5-5", u"claude-opus-5-5"});

constexpr std::array table = std::to_array<Setting>({
    {u"notificationsEnabled", SettingType::truth, u"false", u"say so when files have been tidied"},
    {u"showDockIcon", SettingType::truth, u"true", u"show Quillon in the taskbar"},
    {u"hasOnboarded", SettingType::truth, u"false", u"the introduction has been gone through"},
    {u"dobbin.panelOpen", SettingType::truth, u"false", u"show the panel for talking to Dobbin"},
    {u"ai.suggestRules", SettingType::truth, u"true", u"let Dobbin suggest rules"},
    {u"ai.readContents", SettingType::truth, u"false", u"let Dobbin read what is in files"},
    {u"ai.useClaude", SettingType::truth, u"false", u"let Dobbin ask Claude, with your key"},
    {u"ai.claudeModel", SettingType::text, claudeModels[0], u"which Claude is asked", true,
     claudeModels},
    {u"ai.claudeHost", SettingType::text, u"https://api.anthropic.com", u"where Claude is asked"},
    {u"ai.localModel", SettingType::text, u"",
     u"which local model is asked; the first one that is installed where this is empty"},
    {u"ai.localHost", SettingType::text, u"http://127.0.0.1:11434",
     u"where the local model is asked, on this computer"},
    {u"ai.usage.count", SettingType::number, u"0", u"requests to Claude in that month", false},
    {u"ai.usage.month", SettingType::text, u"", u"the month of the last request to Claude", false},
});

/// The text as it is stored; nothing when it is none of the setting's type.
std::optional<QString> stored(const Setting& setting, const QString& text) {
    switch (setting.type) {
    case SettingType::truth:
        if (text == u"true" || text == u"false")
            return text;
        return std::nullopt;
    case SettingType::number: {
        bool isNumber = false;
        const qulonglong number = text.toULongLong(&isNumber);
        return isNumber ? std::optional(QString::number(number)) : std::nullopt;
    }
    case SettingType::text:
        if (setting.choices.empty() ||
            std::ranges::find(setting.choices, text.toStdU16String()) != setting.choices.end())
            return text;
        return std::nullopt;
    }
    return std::nullopt;
}

/// Other words that people type for the two truths.
QString plainTruth(const QString& typed) {
    const QString word = typed.trimmed().toLower();
    if (word == u"on" || word == u"yes" || word == u"1")
        return u"true"_s;
    if (word == u"off" || word == u"no" || word == u"0")
        return u"false"_s;
    return word;
}

QString validValues(const Setting& setting) {
    if (setting.type == SettingType::truth)
        return u"true or false"_s;
    if (setting.type == SettingType::number)
        return u"a whole number"_s;
    QStringList names;
    for (const std::u16string_view choice : setting.choices)
        names.append(toQString(choice));
    const QString last = names.takeLast();
    return names.join(u", "_s) + u" or "_s + last;
}

} // namespace

std::span<const Setting> settingsTable() {
    return table;
}

const Setting* findSetting(QStringView key) {
    const auto* const found = std::ranges::find_if(
        table, [&](const Setting& setting) { return key == QStringView(setting.key); });
    return found == table.end() ? nullptr : found;
}

QString settingText(const Settings& settings, const Setting& setting) {
    const std::optional<QString> value = settings.value(toQString(setting.key));
    return value.and_then([&](const QString& text) { return stored(setting, text); })
        .value_or(toQString(setting.defaultValue));
}

bool settingTruth(const Settings& settings, QStringView key) {
    const Setting* const setting = findSetting(key);
    return setting && settingText(settings, *setting) == u"true";
}

Expected<void> setSetting(Settings& settings, const Setting& setting, const QString& typed) {
    const auto value =
        stored(setting, setting.type == SettingType::truth ? plainTruth(typed) : typed.trimmed());
    if (!value)
        return failure(
            ErrorKind::invalid,
            u"%1 is %2, not “%3”"_s.arg(toQString(setting.key), validValues(setting), typed));
    return settings.setValue(toQString(setting.key), *value);
}

} // namespace quillon
