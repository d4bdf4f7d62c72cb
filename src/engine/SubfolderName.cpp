#include "engine/SubfolderName.h"

#include "engine/DateFormats.h"
#include "engine/LegalName.h"
#include "platform/FileNames.h"

namespace quillon {

namespace {

QString toText(std::string_view bytes) {
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

std::string kindFolder(FileKind kind) {
    switch (kind) {
    case FileKind::image:
        return "Images";
    case FileKind::video:
        return "Videos";
    case FileKind::audio:
        return "Audio";
    case FileKind::document:
        return "Documents";
    case FileKind::pdf:
        return "PDFs";
    case FileKind::archive:
        return "Archives";
    case FileKind::code:
        return "Code";
    case FileKind::folder:
        return "Folders";
    case FileKind::other:
        break;
    }
    return "Other";
}

std::string extensionFolder(std::string_view fileName) {
    const QString extension = toText(splitName(fileName).extension).toUpper();
    return legalName(extension, {}, QStringLiteral("No Extension"));
}

} // namespace

std::string subfolderName(SortStrategy strategy, const ActionContext& context) {
    const std::string_view fileName = lastComponent(context.path);
    switch (strategy) {
    case SortStrategy::byKind:
        return kindFolder(context.kinds.kindOf(toText(fileName), context.status.type));
    case SortStrategy::byMonth:
        return legalName(context.dates.month(context.status.modified), {}, QStringLiteral("Other"));
    case SortStrategy::byExtension:
        break;
    }
    return extensionFolder(fileName);
}

} // namespace quillon
