#include "store/SettingsTable.h"

#include "model/RawValue.h"
#include "support/PrintQt.h"

#include <QHash>
#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

class MemorySettings : public Settings {
public:
    QHash<QString, QString> values;

    std::optional<QString> value(const QString& key) const override {
        return values.contains(key) ? std::optional(values[key]) : std::nullopt;
    }
    Expected<void> setValue(const QString& key, const QString& value) override {
        values[key] = value;
        return {};
    }
};

TEST(SettingsTable, TakesWhatPeopleTypeAndNothingElse) {
    const struct {
        QString key;
        QString typed;
        std::optional<QString> stored; ///< nothing when it is refused
    } rows[] = {
        {u"ai.useClaude"_s, u" On "_s, u"true"_s},
        {u"ai.useClaude"_s, u"no"_s, u"false"_s},
        {u"ai.suggestRules"_s, u"maybe"_s, {}},
        {u"ai.claudeModel"_s, u"claude-opus-5-5"_s, u"claude-opus-5-5"_s},
        {u"ai.claudeModel"_s, u"claude"_s, {}},
        {u"ai.usage.count"_s, u"007"_s, u"7"_s},
        {u"ai.usage.count"_s, u"-1"_s, {}},
        {u"ai.usage.month"_s, u"2026-3"_s, u"2026-3"_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed.toStdString());
        const Setting* const setting = findSetting(row.key);
        ASSERT_NE(setting, nullptr);
        const QString expected = row.stored.value_or(toQString(setting->defaultValue));
        MemorySettings settings;
        EXPECT_EQ(setSetting(settings, *setting, row.typed).has_value(), row.stored.has_value());
        EXPECT_EQ(settingText(settings, *setting), expected);
        if (!row.stored) {
            settings.values = {{row.key, row.typed}};
            EXPECT_EQ(settingText(settings, *setting), expected) << "a person edited the file";
        }
    }
    MemorySettings settings;
    EXPECT_EQ(setSetting(settings, *findSetting(u"ai.claudeModel"), u"x"_s).error().message,
              u"ai.claudeModel is claude-sonnet-5-5, claude-haiku-5-5 or claude-opus-5-5, "
              "not “x”"_s);
    EXPECT_EQ(findSetting(u"ai.nothing"), nullptr);
}

} // namespace
} // namespace quillon::testing
