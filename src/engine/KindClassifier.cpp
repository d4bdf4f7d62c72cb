#include "engine/KindClassifier.h"

#include "engine/KindTables.h"

namespace quillon {

namespace {

/// More different extensions than any folder has, unless they are no extensions.
constexpr std::size_t maxRemembered = 4096;

/// Whether what follows the last dot can name a format at all: "Minutes of 3.5 with Dr. Lee" and
/// "backup.20240501" have none, and asking the database about each of them would be slow.
bool mayNameFormat(QStringView extension) {
    constexpr qsizetype longest = 24;
    return extension.size() <= longest &&
           std::ranges::none_of(extension, [](QChar letter) { return letter.isSpace(); }) &&
           !std::ranges::all_of(extension, [](QChar letter) { return letter.isDigit(); });
}

/// The type itself tells what a file is; what it is built on does so only when the type is unknown,
/// and a container never does: many a document is a zip file inside.
std::optional<FileKind> kindByConformance(const QStringList& types) {
    for (const QString& type : types) {
        const std::optional<FileKind> kind = kindByContentType(type);
        if (kind && (kind != FileKind::archive || type == types.first())) {
            return kind;
        }
    }
    return std::nullopt;
}

} // namespace

FileKind KindClassifier::kindOf(const QString& fileName, FileType type) {
    if (type != FileType::regular) {
        return type == FileType::directory ? FileKind::folder : FileKind::other;
    }
    const QStringView name(fileName);
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot <= 0 || dot + 1 == name.size()) {
        return kindByName(name).value_or(FileKind::other);
    }
    const Meaning meaning = meaningOf(name.sliced(dot + 1));
    if (meaning.namesMatter) {
        if (const std::optional<FileKind> kind = kindByName(name)) {
            return *kind;
        }
    }
    // "Makefile.am" and "README.first": the part before an extension that tells nothing may tell
    // it.
    return meaning.kind ? *meaning.kind : kindByName(name.first(dot)).value_or(FileKind::other);
}

KindClassifier::Meaning KindClassifier::meaningOf(QStringView extension) {
    const auto remembered = byExtension_.find(extension);
    if (remembered != byExtension_.end()) {
        return remembered->second;
    }
    const Meaning meaning{lookUp(extension), hasKnownNames(extension)};
    if (byExtension_.size() < maxRemembered) {
        byExtension_.emplace(extension.toString(), meaning);
    }
    return meaning;
}

std::optional<FileKind> KindClassifier::lookUp(QStringView extension) const {
    if (const std::optional<FileKind> kind = kindByExtension(extension)) {
        return kind;
    }
    if (!mayNameFormat(extension)) {
        return std::nullopt;
    }
    // A name of our own, so that nothing but the extension counts in what is remembered.
    return kindByConformance(types_.conformance(QStringLiteral("x.").append(extension)));
}

} // namespace quillon
