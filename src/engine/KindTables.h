#pragma once

#include "model/FileKind.h"

#include <QStringView>

#include <optional>

namespace quillon {

/// What an extension stands for in people's folders, where that is known without the machine's
/// database, or where the database says something else. Letter case is ignored.
[[nodiscard]] std::optional<FileKind> kindByExtension(QStringView extension);

/// What a whole name stands for: "Makefile", "CMakeLists.txt". Letter case is ignored.
[[nodiscard]] std::optional<FileKind> kindByName(QStringView fileName);

/// True when some whole name with this extension stands for something of its own.
[[nodiscard]] bool hasKnownNames(QStringView extension);

/// What a single MIME type is, its ancestors left aside.
[[nodiscard]] std::optional<FileKind> kindByContentType(QStringView type);

} // namespace quillon
