#pragma once

#include "model/FileKind.h"
#include "platform/ContentTypes.h"
#include "platform/FileStatus.h"

#include <QHash>
#include <QString>

#include <functional>
#include <optional>
#include <unordered_map>

namespace quillon {

/// What kind of thing a file is, judged by its type and name, never by its contents. Remembers what
/// it found by extension. One thread at a time.
class KindClassifier {
public:
    explicit KindClassifier(const ContentTypes& types) : types_(types) {}

    [[nodiscard]] FileKind kindOf(const QString& fileName, FileType type);

private:
    struct ViewHash {
        using is_transparent = void;
        std::size_t operator()(QStringView text) const { return qHash(text); }
    };

    struct Meaning {
        std::optional<FileKind> kind; ///< absent: the extension tells nothing
        bool namesMatter = false;     ///< some whole names with it are of another kind
    };

    [[nodiscard]] Meaning meaningOf(QStringView extension);
    [[nodiscard]] std::optional<FileKind> lookUp(QStringView extension) const;

    const ContentTypes& types_;
    /// By the extension as it is written.
    std::unordered_map<QString, Meaning, ViewHash, std::equal_to<>> byExtension_;
};

} // namespace quillon
