#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/Refusal.h"
#include "cli/UnknownWord.h"
#include "cli/Verbs.h"
#include "store/SettingsTable.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

QString keyOf(const Setting& setting) {
    return QStringView(setting.key).toString();
}

Chosen<const Setting*> settingNamed(const std::string& given) {
    const QString key = QString::fromStdString(given);
    const Setting* const setting = findSetting(key);
    if (setting != nullptr && setting->isShown)
        return setting;
    std::vector<std::string> keys;
    for (const Setting& known : settingsTable())
        if (known.isShown)
            keys.push_back(keyOf(known).toStdString());
    return unknownWord(given, "a setting", keys);
}

void writeValue(JsonStream& json, SettingType type, QStringView value) {
    switch (type) {
    case SettingType::truth:
        json.truth(value == u"true");
        return;
    case SettingType::number:
        json.integer(value.toLongLong());
        return;
    case SettingType::text:
        json.text(value);
        return;
    }
}

void writeSetting(JsonStream& json, const Setting& setting, const Settings& settings) {
    json.beginObject().key("key").text(setting.key);
    writeValue(json.key("value"), setting.type, settingText(settings, setting));
    writeValue(json.key("default"), setting.type, setting.defaultValue);
    json.key("meaning").text(setting.meaning).endObject();
}

void printText(const Settings& settings, const Console& console) {
    ColumnWidth keys;
    ColumnWidth values;
    for (const Setting& setting : settingsTable())
        if (setting.isShown) {
            keys.fit(keyOf(setting));
            values.fit(settingText(settings, setting));
        }
    LineBuffer lines(console.out, console.colored);
    for (const Setting& setting : settingsTable())
        if (setting.isShown)
            lines.add(keyOf(setting), LineBuffer::Style::plain, keys.columns())
                .add(u"  "_s)
                .add(settingText(settings, setting), LineBuffer::Style::strong, values.columns())
                .add(u"  "_s)
                .add(QStringView(setting.meaning).toString(), LineBuffer::Style::faint)
                .endLine();
}

} // namespace

ExitCode settingsListCommand(const SettingsOptions& options, const Console& console,
                             Services& services) {
    const Settings& settings = services.settings();
    if (!options.json) {
        printText(settings, console);
        return ExitCode::done;
    }
    JsonStream json;
    json.beginList();
    for (const Setting& setting : settingsTable())
        if (setting.isShown)
            writeSetting(json, setting, settings);
    json.endList();
    finish(json, console.out);
    return ExitCode::done;
}

ExitCode settingsGetCommand(const SettingsOptions& options, const Console& console,
                            Services& services) {
    const auto setting = settingNamed(options.key);
    if (!setting)
        return sayRefusal(setting.error(), console);
    if (options.json) {
        JsonStream json;
        writeSetting(json, **setting, services.settings());
        finish(json, console.out);
    } else {
        LineBuffer(console.out, false).add(settingText(services.settings(), **setting)).endLine();
    }
    return ExitCode::done;
}

ExitCode settingsSetCommand(const SettingsOptions& options, const Console& console,
                            Services& services) {
    const auto setting = settingNamed(options.key);
    if (!setting)
        return sayRefusal(setting.error(), console);
    const auto set =
        setSetting(services.settings(), **setting, QString::fromStdString(options.value));
    if (set)
        return ExitCode::done;
    console.say(set.error());
    return set.error().kind == ErrorKind::invalid ? ExitCode::usage : ExitCode::someFailed;
}

} // namespace quillon
