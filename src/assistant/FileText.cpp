#include "assistant/FileText.h"

#include "assistant/ByteCount.h"
#include "assistant/DatesInText.h"
#include "assistant/PlainLine.h"
#include "engine/KindClassifier.h"
#include "platform/CloudFiles.h"
#include "platform/FileNames.h"
#include "platform/FileSystem.h"
#include "platform/Provenance.h"

#include <QDateTime>
#include <QUrl>

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestText = 700;

constexpr std::array<QStringView, 7> documentExtensions{u"doc",  u"docm", u"docx", u"dot",
                                                        u"dotx", u"odt",  u"ott"};

QString nameOf(const std::string& path) {
    return QString::fromUtf8(lastComponent(path));
}

QString isoDate(Timestamp moment) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch();
    return QDateTime::fromSecsSinceEpoch(seconds.count()).date().toString(Qt::ISODate);
}

} // namespace

FileText::FileText(const Platform& platform, TextReader& reader, const QLocale& locale)
    : platform_(platform), reader_(reader), locale_(locale) {}

QString FileText::describe(const std::string& path, bool readContents) const {
    const QString name = nameOf(path);
    const auto status = platform_.fileSystem.status(path);
    KindClassifier kinds(platform_.contentTypes);
    QStringList lines{u"name: "_s + plainLine(name),
                      u"kind: "_s +
                          label(kinds.kindOf(name, status ? status->type : FileType::regular))};
    if (status && status->type != FileType::directory)
        lines.append(u"size: "_s + byteCount(status->size));
    if (status)
        lines.append(u"date: "_s + isoDate(status->created.value_or(status->modified)));
    if (const auto host = sourceHost(path))
        lines.append(u"downloaded from: "_s + plainLine(*host));
    const auto snippet =
        readContents && status && status->type == FileType::regular ? text(path) : std::nullopt;
    if (snippet) {
        if (const auto date = firstDate(*snippet))
            lines.append(u"date in text: "_s + date->toString(Qt::ISODate));
        lines.append(u"text: "_s + *snippet);
    }
    return lines.join(u'\n');
}

std::optional<QString> FileText::text(const std::string& path) const {
    const auto kind = textKind(nameOf(path));
    // Opening such a file would fetch it.
    if (!kind || platform_.cloudFiles.isOnlineOnly(path))
        return std::nullopt;
    return kind == TextKind::image ? recognizeText(path) : read(path, *kind);
}

std::optional<QDate> FileText::firstDate(const QString& text) const {
    return quillon::firstDate(text, locale_);
}

std::optional<QString> FileText::sourceHost(const std::string& path) const {
    for (const QString& source : platform_.provenance.whereFrom(path)) {
        const QUrl url(source);
        if (url.isValid() && !url.host().isEmpty())
            return url.host();
    }
    return std::nullopt;
}

std::optional<QString> FileText::recognizeText(const std::string& path) const {
    return read(path, TextKind::image);
}

std::optional<QString> FileText::read(const std::string& path, TextKind kind) const {
    const auto found = reader_.read(path, kind);
    if (!found)
        return std::nullopt;
    const QString line = cutTo(plainLine(*found).simplified(), longestText);
    return line.isEmpty() ? std::nullopt : std::optional(line);
}

std::optional<TextKind> FileText::textKind(const QString& fileName) const {
    const QStringList types = platform_.contentTypes.conformance(fileName);
    if (types.contains("application/pdf"_L1))
        return TextKind::pdf;
    if (std::ranges::any_of(types, [](const QString& t) { return t.startsWith("image/"_L1); }))
        return TextKind::image;
    if (types.contains("application/rtf"_L1) || types.contains("text/rtf"_L1))
        return TextKind::richText;
    const QString extension =
        QString::fromStdString(std::string(splitName(fileName.toStdString()).extension));
    if (std::ranges::find(documentExtensions, extension.toLower()) != documentExtensions.end())
        return TextKind::document;
    KindClassifier kinds(platform_.contentTypes);
    if (types.contains("text/plain"_L1) ||
        kinds.kindOf(fileName, FileType::regular) == FileKind::code)
        return TextKind::plain;
    return std::nullopt;
}

} // namespace quillon
