#include "engine/SubfolderName.h"

#include "engine/DateFormats.h"
#include "engine/LegalName.h"
#include "platform/FileNames.h"

namespace quillon {

namespace {

std::string extensionFolder(std::string_view fileName) {
    const QString extension = QString::fromUtf8(splitName(fileName).extension).toUpper();
    return legalName(extension, {}, QStringLiteral("No Extension"));
}

} // namespace

std::string subfolderName(SortStrategy strategy, const ActionContext& context) {
    const std::string_view fileName = lastComponent(context.path);
    switch (strategy) {
    case SortStrategy::byKind:
        return label(context.kinds.kindOf(QString::fromUtf8(fileName), context.status.type))
            .toStdString();
    case SortStrategy::byMonth:
        return legalName(context.dates.month(context.status.modified), {}, QStringLiteral("Other"));
    case SortStrategy::byExtension:
        break;
    }
    return extensionFolder(fileName);
}

} // namespace quillon
