#pragma once

#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Storage.h"
#include "store/StorePlaces.h"

#include <QString>

#include <optional>
#include <vector>

namespace quillon {

/// Remembers on disk what a model answered when it wrote the rules that were shown last, so that
/// the rule that is saved is the one that somebody saw. Eight at most, for a day. Any thread; of
/// two processes that write at once the later one counts.
class DraftMemory {
public:
    /// Borrows the first two.
    DraftMemory(Storage& storage, FileSystem& fileSystem, StorePlaces places)
        : storage_(storage), fileSystem_(fileSystem), places_(std::move(places)) {}

    /// The answer that was shown last for the sentence and the folder; nothing when there is none,
    /// or the file can't be read.
    [[nodiscard]] std::optional<QString> answer(const QString& folder, const QString& sentence,
                                                Timestamp now) const;

    /// Whatever fails, an older answer isn't taken for this one.
    void remember(const QString& folder, const QString& sentence, const QString& answer,
                  Timestamp now);

private:
    struct Draft;

    [[nodiscard]] QString resolved(const QString& path) const;
    [[nodiscard]] std::vector<Draft> read(Timestamp now) const;

    Storage& storage_;
    FileSystem& fileSystem_;
    StorePlaces places_;
};

} // namespace quillon
