#include "support/GuiApplication.h"
#include "support/PrintQt.h"
#include "ui/DesktopLook.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlPropertyMap>
#include <gtest/gtest.h>

#include <array>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr double text = 4.5;
constexpr double shape = 3;

struct Pair {
    const char* ink;
    const char* fill;
    double least = text;
};

constexpr std::array pairs{
    Pair{"text1", "bg"},
    Pair{"text1", "sidebar"},
    Pair{"text1", "card"},
    Pair{"text1", "selected"},
    Pair{"text1", "hover"},
    Pair{"text1", "accentSoft"},
    Pair{"text2", "card"},
    Pair{"text2", "bg"},
    Pair{"text2", "sidebar"},
    Pair{"text2", "hover"},
    Pair{"text2", "dobbinSoft"},
    Pair{"text2", "accentSoft"},
    Pair{"text3", "card"},
    Pair{"text3", "bg"},
    Pair{"text3", "sidebar"},
    Pair{"text3", "sunken"},
    Pair{"text3", "hover"},
    Pair{"accent", "card"},
    Pair{"accent", "bg"},
    Pair{"onAccent", "accent"},
    Pair{"onAccent", "accentHover"},
    Pair{"onAccent", "accentPressed"},
    Pair{"accentOnSoft", "accentSoft"},
    Pair{"dobbin", "dobbinSoft"},
    Pair{"dobbin", "card"},
    Pair{"onDobbin", "dobbin"},
    Pair{"onDobbin", "dobbinHover"},
    Pair{"onDobbin", "dobbinPressed"},
    Pair{"warn", "card"},
    Pair{"warn", "sidebar"},
    Pair{"warn", "warnSoft"},
    Pair{"warnIcon", "warnSoft", shape},
    Pair{"warnIcon", "card", shape},
    Pair{"error", "card"},
    Pair{"error", "errorSoft"},
    Pair{"onError", "errorFill"},
    Pair{"ok", "okSoft"},
    Pair{"ok", "card"},
    Pair{"onToast", "toast"},
    Pair{"toastLink", "toast"},
    Pair{"knobOn", "accent", shape},
    Pair{"knob", "switchOff", shape},
    Pair{"tickOutline", "card", shape},
    Pair{"accent", "hover", shape},
};

/// The theme as QML has it, over a desktop of the test's own.
class ThemeTest : public ::testing::Test {
protected:
    ThemeTest() {
        desktop_.insert({{u"isDark"_s, false},
                         {u"isHighContrast"_s, false},
                         {u"reducesMotion"_s, false},
                         {u"fontFamily"_s, u"Inter"_s},
                         {u"bodySize"_s, 13}});
        engine_.addImportPath(u"qrc:/"_s);
        engine_.rootContext()->setContextProperty(u"Desktop"_s, &desktop_);
        QQmlComponent component(&engine_);
        component.setData("import QtQml\nimport Quillon\n"
                          "QtObject { property QtObject theme: Theme\n"
                          "function value(of) { return eval(of) } }",
                          QUrl());
        holder_.reset(component.create());
        if (!holder_)
            throw std::runtime_error(component.errorString().toStdString());
    }

    /// What an expression of QML is worth, such as "Theme.tint(3)".
    QVariant value(const QString& expression) {
        QVariant result;
        QMetaObject::invokeMethod(holder_.get(), "value", Q_RETURN_ARG(QVariant, result),
                                  Q_ARG(QVariant, expression));
        return result;
    }

    QColor color(const QString& expression) {
        const QColor found = value(expression).value<QColor>();
        EXPECT_TRUE(found.isValid()) << expression.toStdString();
        return found;
    }

    void expectContrast(const QString& ink, const QString& fill, double least) {
        EXPECT_GE(contrastRatio(color(ink), color(fill)), least)
            << ink.toStdString() << " on " << fill.toStdString();
    }

    GuiApplication application_;
    QQmlPropertyMap desktop_;
    QQmlEngine engine_;
    std::unique_ptr<QObject> holder_;
};

TEST_F(ThemeTest, CanBeReadInEveryLook) {
    for (const bool isDark : {false, true}) {
        for (const bool isHighContrast : {false, true}) {
            SCOPED_TRACE(::testing::Message()
                         << "dark " << isDark << ", high contrast " << isHighContrast);
            desktop_.insert({{u"isDark"_s, isDark}, {u"isHighContrast"_s, isHighContrast}});
            for (const Pair& pair : pairs)
                expectContrast(u"Theme."_s + QLatin1StringView(pair.ink),
                               u"Theme."_s + QLatin1StringView(pair.fill), pair.least);
            for (int index = -1; index < 9; ++index)
                expectContrast(u"Theme.onTint"_s, u"Theme.tint(%1)"_s.arg(index), shape);
            for (const QLatin1StringView kind :
                 {"image"_L1, "video"_L1, "audio"_L1, "document"_L1, "pdf"_L1, "archive"_L1,
                  "code"_L1, "folder"_L1, "other"_L1, "unheard of"_L1})
                expectContrast(u"Theme.kindText('%1')"_s.arg(kind),
                               u"Theme.kindFill('%1')"_s.arg(kind), text);
            if (isHighContrast) {
                expectContrast(u"Theme.line"_s, u"Theme.card"_s, text);
                expectContrast(u"Theme.lineStrong"_s, u"Theme.bg"_s, text);
            }
        }
    }
}

TEST_F(ThemeTest, GrowsWithTheTextAndStandsStillWhenAsked) {
    desktop_.insert({{u"bodySize"_s, 20}, {u"reducesMotion"_s, true}});
    EXPECT_EQ(value(u"Theme.body.size"_s).toInt(), 20);
    EXPECT_GE(value(u"Theme.control"_s).toInt(), value(u"Theme.body.lineHeight"_s).toInt());
    EXPECT_EQ(value(u"Theme.slow + Theme.toastIn + Theme.spin"_s).toInt(), 0);
    EXPECT_GT(value(u"Theme.toastStay"_s).toInt(), 0);
    desktop_.insert(u"bodySize"_s, 9);
    EXPECT_EQ(value(u"Theme.micro.size"_s).toInt(), 11);
}

} // namespace
} // namespace quillon::testing
