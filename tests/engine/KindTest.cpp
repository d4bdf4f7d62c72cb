#include "engine/KindClassifier.h"
#include "engine/Packages.h"
#include "platform/linux/MimeContentTypes.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <ranges>

namespace quillon {

namespace {

struct GoldenRow {
    FileKind kind;
    const char* names; ///< set apart by bars
};

const GoldenRow golden[] = {
    {FileKind::image,
     "a.jpg|IMG_0042.JPG|a.jpeg|a.png|a.gif|a.bmp|a.tif|a.webp|a.heic|a.avif|a.jxl|logo.svg|"
     "logo.svgz|a.psd|a.xcf|a.kra|a.ora|a.ai|a.eps|a.ico|a.icns|a.tga|a.exr|a.CR2|a.cr3|a.nef|"
     "a.arw|a.dng|a.raf|a.orf|a.srw"},
    {FileKind::video,
     "a.mp4|a.m4v|Screen Recording.MOV|a.mkv|a.webm|a.avi|a.wmv|a.flv|a.mpg|a.ogv|a.3gp|"
     "00001.MTS|a.m2ts|a.vob|a.rmvb"},
    {FileKind::audio,
     "a.mp3|a.m4a|a.m4b|a.m4r|a.aac|a.flac|a.wav|a.ogg|a.oga|a.opus|a.wma|a.aiff|a.mid|a.ape|"
     "a.amr|a.mka"},
    {FileKind::pdf, "a.pdf|Invoice 2024.PDF"},
    {FileKind::archive,
     "a.zip|a.7z|a.rar|a.tar|a.tar.gz|a.tgz|a.gz|a.tar.bz2|a.tbz2|a.tar.xz|a.xz|a.tar.zst|a.zst|"
     "a.lz4|a.lzh|a.arj|a.Z|a.cab|a.cpio|a.sit|a.dmg|debian-12.iso|disk.img|drawing.svg.gz|"
     "paper.pdf.gz"},
    {FileKind::code,
     "a.c|a.h|a.cpp|a.C|a.hpp|a.m|a.mm|a.cs|a.java|a.kt|a.kts|a.swift|a.rs|a.go|a.py|a.pyw|a.rb|"
     "a.pl|a.pm|a.php|a.lua|a.js|a.mjs|a.jsx|a.ts|a.tsx|a.d.ts|a.vue|a.css|a.scss|a.sh|a.bash|"
     "a.zsh|a.fish|a.bat|a.ps1|a.vb|a.vbs|a.sql|a.R|a.jl|a.hs|a.scala|a.dart|a.ex|a.erl|a.ml|"
     "a.lisp|a.asm|a.s|a.f90|a.cob|a.cr|a.pas|a.v|a.qml|a.cmake|a.ipynb|a.applescript|Makefile|"
     "GNUmakefile|Makefile.am|Dockerfile|Dockerfile.dev|CMakeLists.txt|meson.build|Gemfile"},
    {FileKind::document,
     "a.txt|a.md|a.rtf|a.html|a.HTM|a.json|a.xml|a.yaml|a.toml|a.ini|a.conf|a.csv|a.tsv|a.log|"
     "a.tex|a.srt|a.vtt|a.eml|a.ics|a.vcf|a.doc|a.docx|a.docm|a.odt|a.pages|a.wpd|a.xls|a.xlsx|"
     "a.xlsb|a.ods|a.numbers|a.ppt|a.pptx|a.ppsx|a.odp|Talk.key|a.vsdx|a.odg|a.gpx|a.kml|a.epub|"
     "a.mobi|a.azw3|a.fb2|a.cbz|a.djvu|a.ps|a.mht|a.m3u8|a.gnumeric|a.patch|a.po|README|"
     "readme.linux|LICENSE|Changelog"},
    {FileKind::other,
     "a.jar|a.apk|a.deb|a.rpm|a.AppImage|a.flatpak|a.exe|a.msi|a.pkg|a.xpi|a.crx|a.ipa|a.whl|"
     "a.gem|a.ttf|a.otf|a.woff2|a.torrent|a.so|libz.so.1|a.o|a.a|a.class|a.pyc|a.db|a.sqlite3|"
     "a.bin|a.dat|a.stl|a.3mf|a.blend|a.kmz|a.swf|a.lnk|a.url|a.desktop|a.qcow2|a.bak|a.pdf~|"
     "data|core|backup.20240501|a.unknown|a.|.txt|photo.jpg.unheardof|Notes on 3.5 mm plugs|"
     "a.jpg.part|zip|jpg"},
};

class KindTest : public ::testing::Test {
protected:
    // Types that the user of this machine has added are none of this test's business.
    void SetUp() override { qputenv("XDG_DATA_HOME", noUserTypes_.path().toUtf8()); }

    QTemporaryDir noUserTypes_;
    MimeContentTypes types_;
};

TEST_F(KindTest, FollowsTheNameInAnyOrder) {
    if (types_.conformance(QStringLiteral("a.pdf")).isEmpty()) {
        GTEST_SKIP() << "no shared MIME database on this machine";
    }
    std::vector<std::pair<QString, FileKind>> names;
    for (const GoldenRow& row : golden) {
        for (const QString& name : QString::fromUtf8(row.names).split(u'|')) {
            names.emplace_back(name, row.kind);
        }
    }
    // Twice: what is remembered of one name must never decide another.
    KindClassifier forwards(types_);
    for (const auto& [name, kind] : names) {
        EXPECT_EQ(forwards.kindOf(name, FileType::regular), kind) << name.toStdString();
    }
    KindClassifier backwards(types_);
    for (const auto& [name, kind] : std::views::reverse(names)) {
        EXPECT_EQ(backwards.kindOf(name, FileType::regular), kind) << name.toStdString();
    }
}

TEST_F(KindTest, PutsTheTypeBeforeTheName) {
    KindClassifier kinds(types_);
    const QString name = QStringLiteral("Holiday.jpg");
    EXPECT_EQ(kinds.kindOf(name, FileType::directory), FileKind::folder);
    EXPECT_EQ(kinds.kindOf(name, FileType::symbolicLink), FileKind::other);
    EXPECT_EQ(kinds.kindOf(name, FileType::special), FileKind::other);
}

class CountingTypes : public ContentTypes {
public:
    QStringList conformance(const QString&) const override {
        ++questions;
        return {QStringLiteral("application/x-new"), QStringLiteral("application/zip")};
    }
    mutable int questions = 0;
};

TEST_F(KindTest, AsksTheDatabaseOncePerUnknownExtension) {
    const CountingTypes types;
    KindClassifier kinds(types);
    const auto kindOf = [&](const QString& name) { return kinds.kindOf(name, FileType::regular); };
    for (int i = 0; i < 100; ++i) {
        const QString number = QString::number(i);
        EXPECT_EQ(kindOf(number + QStringLiteral(".newformat")), FileKind::other)
            << "a container says nothing of what is in it";
        EXPECT_EQ(kindOf(number + QStringLiteral(".jpg")), FileKind::image);
        EXPECT_EQ(kindOf(QStringLiteral("rotated.") + number), FileKind::other);
        EXPECT_EQ(kindOf(QStringLiteral("Chapter 1. Part ") + number), FileKind::other);
    }
    EXPECT_EQ(types.questions, 1);
}

TEST(PackagesTest, AreKnownByTheirNames) {
    for (const char* const name : {"Safari.app", "Photos Library.PhotosLibrary", "Talk.key",
                                   "Notes.rtfd", "Quillon.xcodeproj", "Old.Numbers"}) {
        EXPECT_TRUE(isPackage(name)) << name;
    }
    for (const char* const name : {"app", ".app", "app.d", "Photos", "my.apps", ""}) {
        EXPECT_FALSE(isPackage(name)) << name;
    }
}

} // namespace

} // namespace quillon
