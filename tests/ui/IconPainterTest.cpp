#include "ui/icons/IconPainter.h"

#include "support/GuiApplication.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

bool hasInk(const QImage& image, const QColor& color) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

TEST(IconPainterTest, LeavesNoHoleAndUsesTheOneColor) {
    const GuiApplication application;
    const QColor petrol(0x0e, 0x6a, 0x72);
    for (const int size : {16, 22}) {
        for (const QString& name : {u"list-add"_s, u"folder-download"_s, u"no-such-icon"_s}) {
            const QImage image = paintIcon(name, size, 2 * size, petrol);
            EXPECT_EQ(image.size(), QSize(2 * size, 2 * size));
            EXPECT_TRUE(hasInk(image, petrol)) << name.toStdString() << " at " << size;
        }
    }
}

/// What the QML of the application names is among what it brings, whatever the desktop has.
TEST(IconPainterTest, BringsEveryDrawingThatTheScreensName) {
    static const QRegularExpression named(uR"x((icon|glyph)(?!role)\w*: "([a-z-]+)")x"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    int count = 0;
    QDirIterator files(u":/Quillon"_s, {u"*.qml"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        auto matches = named.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext()) {
            const auto match = matches.next();
            const bool isGlyph = match.captured(1).compare(u"glyph", Qt::CaseInsensitive) == 0;
            const QString path =
                (isGlyph ? u":/glyphs/%1.svg"_s : u":/icons/16/%1.svg"_s).arg(match.captured(2));
            EXPECT_TRUE(QFile::exists(path))
                << match.captured(0).toStdString() << " in " << file.fileName().toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 10);
}

} // namespace
} // namespace quillon::testing
