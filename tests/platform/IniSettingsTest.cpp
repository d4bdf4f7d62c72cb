#include "platform/linux/IniSettings.h"

#include "support/PrintQt.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(IniSettings, KeepsTextAndSeesWhatAPersonWrote) {
    const ScratchFolder scratch;
    IniSettings settings(scratch.path("config/Quillon.conf"));
    EXPECT_EQ(settings.value(u"ai.useClaude"_s), std::nullopt);
    for (const QString& text : {u"true"_s, u"a, b; \"c\" = é\n"_s, u""_s, u"@Invalid()"_s}) {
        ASSERT_TRUE(settings.setValue(u"ai.useClaude"_s, text));
        EXPECT_EQ(settings.value(u"ai.useClaude"_s), text);
        EXPECT_EQ(IniSettings(scratch.path("config/Quillon.conf")).value(u"ai.useClaude"_s), text);
    }
    scratch.write("config/Quillon.conf", "[General]\nai.useClaude=one, two\nshowDockIcon=false\n");
    EXPECT_EQ(settings.value(u"ai.useClaude"_s), u"one, two"_s);
    EXPECT_EQ(settings.value(u"showDockIcon"_s), u"false"_s);
}

TEST(IniSettings, SaysWhenAValueIsNotSaved) {
    const ScratchFolder scratch;
    scratch.write("file", "");
    IniSettings blocked(scratch.path("file/Quillon.conf"));
    const auto set = blocked.setValue(u"key"_s, u"value"_s);
    ASSERT_FALSE(set);
    EXPECT_TRUE(set.error().message.startsWith(u"the settings can't be saved"_s));
    EXPECT_EQ(blocked.value(u"key"_s), std::nullopt);
}

} // namespace
} // namespace quillon::testing
