#pragma once

#include "model/FileKind.h"
#include "platform/ContentTypes.h"
#include "platform/FileStatus.h"

#include <QString>

#include <unordered_map>

namespace quillon {

/// What kind of thing a file is, judged by its type and name, never by its contents. Remembers what it
/// found by extension. One thread at a time.
class KindClassifier {
public:
    explicit KindClassifier(const ContentTypes& types) : types_(types) {}

    [[nodiscard]] FileKind kindOf(const QString& fileName, FileType type);

private:
    const ContentTypes& types_;
    std::unordered_map<QString, FileKind> byExtension_;
};

} // namespace quillon
