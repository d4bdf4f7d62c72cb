#pragma once

#include "platform/Storage.h"
#include "store/PersistedState.h"

#include <optional>
#include <string>

namespace quillon {

/// The file that holds the PersistedState.
class StateFile {
public:
    /// Borrows `storage`.
    StateFile(Storage& storage, std::string path) : storage_(storage), path_(std::move(path)) {}

    /// What the file holds; an empty state where there is none. Changes nothing. Fails with
    /// `invalid` when it can't be decoded, otherwise as Storage::readWhole does.
    [[nodiscard]] Expected<PersistedState> read(Timestamp now) const;

    struct Loaded {
        PersistedState state;
        std::optional<QString> warning; ///< a sentence: what was wrong and where the file is now
    };
    /// As read(), but a file that can't be used is first kept aside as
    /// "store.json.unreadable-DATE", and the state is empty. Fails when it can't be kept aside
    /// either, and with `io` when the system can't read it just now.
    [[nodiscard]] Expected<Loaded> load(Timestamp now);

    /// Durably. Bytes that this object wrote last and that are still there are not written again.
    [[nodiscard]] Expected<void> save(const PersistedState& state);

    /// Keeps what is there as another file, durably. False where there is no file.
    [[nodiscard]] Expected<bool> keepAs(const std::string& other);

private:
    Storage& storage_;
    std::string path_;
    bool hasWritten_ = false;
};

} // namespace quillon
