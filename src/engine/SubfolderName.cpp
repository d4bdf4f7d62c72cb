#include "engine/SubfolderName.h"

#include "engine/DateFormats.h"
#include "engine/LegalName.h"
#include "platform/FileNames.h"

namespace quillon {

namespace {

QString noExtension() {
    return QStringLiteral("No Extension");
}

std::string extensionFolder(std::string_view fileName) {
    const QString extension = QString::fromUtf8(splitName(fileName).extension).toUpper();
    const std::string name = legalName(extension, {}, noExtension());
    return QString::fromStdString(name).trimmed().toStdString();
}

bool isKindFolder(const QString& name) {
    return std::ranges::any_of(allCases<FileKind>(),
                               [&](FileKind kind) { return label(kind) == name; });
}

/// In the digits of any language.
bool isMonthFolder(const QString& name) {
    return name.size() == 7 && name[4] == u'-' &&
           std::ranges::all_of(QString(name).remove(4, 1), [](QChar c) { return c.isDigit(); });
}

bool isExtensionFolder(const QString& name) {
    return name == noExtension() || (!name.contains(u'.') && name == name.toUpper());
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

bool isSubfolderName(SortStrategy strategy, std::string_view name) {
    const QString text = QString::fromUtf8(name);
    switch (strategy) {
    case SortStrategy::byKind:
        return isKindFolder(text);
    case SortStrategy::byMonth:
        return isMonthFolder(text);
    case SortStrategy::byExtension:
        break;
    }
    return isExtensionFolder(text);
}

} // namespace quillon
