#include "assistant/DatesInText.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

#include <chrono>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

QString found(const QString& text, const QLocale& locale) {
    const auto date = firstDate(text, locale);
    return date ? date->toString(Qt::ISODate) : u"none"_s;
}

const QLocale british(QLocale::English, QLocale::UnitedKingdom);
const QLocale american(QLocale::English, QLocale::UnitedStates);
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale spanish(QLocale::Spanish, QLocale::Spain);
const QLocale french(QLocale::French, QLocale::France);

} // namespace

TEST(DatesInText, FindsTheFirstThatIsWrittenOut) {
    const struct {
        QString text;
        QString expected;
        QLocale locale = british;
    } cases[] = {
        {u"Issued 2026-03-12."_s, u"2026-03-12"_s},
        {u"(2026-03-12T09:30:00Z)"_s, u"2026-03-12"_s},
        {u"scan_2026-3-2.pdf"_s, u"2026-03-02"_s},
        {u"2026/03/12"_s, u"2026-03-12"_s},
        {u"Date:12 March 2026,"_s, u"2026-03-12"_s},
        {u"Thursday, March 12, 2026"_s, u"2026-03-12"_s},
        {u"the 12th of March, 2026"_s, u"2026-03-12"_s},
        {u"MARCH 12TH 2026"_s, u"2026-03-12"_s},
        {u"12-Mar-2026"_s, u"2026-03-12"_s},
        {u"12MAR2026"_s, u"2026-03-12"_s},
        {u"Mar. 1st, 2026"_s, u"2026-03-01"_s},
        {u"Sept 2026"_s, u"2026-09-01"_s},
        {u"for Mar 2026:"_s, u"2026-03-01"_s},
        {u"29 February 2028"_s, u"2028-02-29"_s},
        {u"Due 2 May; paid 2026-05-03 and 2026-05-04"_s, u"2026-05-03"_s},
        {u"from 12 March 2026-14 March 2026"_s, u"2026-03-12"_s},
        {u"12/03/2026"_s, u"2026-03-12"_s},
        {u"12/03/2026"_s, u"2026-12-03"_s, american},
        {u"25/03/2026"_s, u"2026-03-25"_s, american},
        {u"03/25/2026"_s, u"2026-03-25"_s},
        {u"12.03.2026"_s, u"2026-03-12"_s, american},
        {u"12. 3. 2026"_s, u"2026-03-12"_s, german},
        {u"Köln, 12. März 2026"_s, u"2026-03-12"_s, german},
        {u"Ko\u0308ln, 12. Ma\u0308rz 2026"_s, u"2026-03-12"_s, german},
        {u"12 March 2026"_s, u"2026-03-12"_s, german},
        {u"12 de marzo de 2026"_s, u"2026-03-12"_s, spanish},
        {u"Paris, le 1er févr. 2026"_s, u"2026-02-01"_s, french},
        {u"12. März 2026"_s, u"none"_s},
        {u"12 March"_s, u"none"_s},
        {u"tomorrow, 12/03/26"_s, u"none"_s},
        {u"31 February 2026"_s, u"none"_s},
        {u"31/02/2026 or 2026-02-31, else 1 Mar 2026"_s, u"2026-03-01"_s},
        {u"2026-13-01, 32/13/2026, 0 March 2026 2026"_s, u"2026-03-01"_s},
        {u"version 1.12.03.2026, 12.03.2026.1"_s, u"none"_s},
        {u"part A12/03/2026, 12/03/20261, march 12 20261"_s, u"none"_s},
        {u"20260312 Marching 2026 12 2026"_s, u"none"_s},
        {u""_s, u"none"_s},
    };
    for (const auto& [text, expected, locale] : cases)
        EXPECT_EQ(found(text, locale), expected) << text.toStdString();
}

TEST(DatesInText, TakesTimeInProportionToTheText) {
    const QString pieces[] = {u"1"_s,  u"a"_s,        u"1 "_s,    u"12 march "_s,
                              u"1/"_s, u"mar 1st,"_s, u"12.03."_s};
    for (const QString& piece : pieces) {
        const auto began = std::chrono::steady_clock::now();
        EXPECT_EQ(firstDate(piece.repeated(1'000'000 / piece.size()), german), std::nullopt);
        EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(5))
            << piece.toStdString();
    }
}

} // namespace quillon
