#pragma once

#include "assistant/RuleSuggestion.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Storage.h"
#include "store/StorePlaces.h"

#include <QSet>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace quillon {

/// What is remembered of the suggestions for one folder.
struct RememberedSuggestions {
    QString path;                              ///< absolute, links resolved
    std::vector<std::uint64_t> dismissed = {}; ///< by suggestionKey(), newest first
    std::vector<RuleSuggestion> shown = {};    ///< as a person saw them last
    std::optional<Timestamp> shownAt = {};
    std::vector<RuleSuggestion> read = {}; ///< as a program did
    std::optional<Timestamp> readAt = {};

    [[nodiscard]] QSet<std::uint64_t> dismissedKeys() const {
        return {dismissed.begin(), dismissed.end()};
    }
};

/// Whose eyes a list is for.
enum class SuggestionReader : std::uint8_t { person, program };

/// Remembers on disk which suggestions were dismissed, and which were shown last, so that a number
/// means the suggestion that somebody saw, whatever a program has asked for since. 50 folders and
/// 200 dismissed ones of each at most; the oldest fall out. Any thread, and several processes at
/// once: each change is made under a lock of its own, which is waited for up to a second.
class SuggestionMemory {
public:
    /// Borrows the first two.
    SuggestionMemory(Storage& storage, FileSystem& fileSystem, StorePlaces places)
        : storage_(storage), fileSystem_(fileSystem), places_(std::move(places)) {}

    /// Nothing but the path when nothing is remembered. Fails when the file is there and can't be
    /// read or understood.
    [[nodiscard]] Expected<RememberedSuggestions> of(const QString& path) const;

    /// Both are durable when they return, and keep a file that can't be understood aside: the value
    /// is then a sentence about it.
    using Kept = Expected<std::optional<QString>>;
    [[nodiscard]] Kept noteShown(const QString& path, std::vector<RuleSuggestion> shown,
                                 Timestamp now, SuggestionReader to = SuggestionReader::person);
    [[nodiscard]] Kept dismiss(const QString& path, const std::vector<std::uint64_t>& keys,
                               Timestamp now);

private:
    using Folders = std::vector<RememberedSuggestions>;

    [[nodiscard]] QString resolved(const QString& path) const;
    [[nodiscard]] Expected<Folders> read() const;
    [[nodiscard]] Kept change(const QString& path, Timestamp now,
                              const std::function<void(RememberedSuggestions&)>& edit);

    Storage& storage_;
    FileSystem& fileSystem_;
    StorePlaces places_;
};

} // namespace quillon
