#pragma once

#include "assistant/ChatTurn.h"
#include "platform/Storage.h"

#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// The file that holds the conversation. Written only by whoever holds the store's lock.
class ChatFile {
public:
    /// Borrows `storage`.
    ChatFile(Storage& storage, std::string path) : storage_(storage), path_(std::move(path)) {}

    struct Loaded {
        std::vector<ChatTurn> turns;    ///< oldest first, the newest of what is there
        std::optional<QString> warning; ///< a sentence: what was wrong and where the file is now
    };
    /// No turns where there is no file. One that can't be used is first kept aside as
    /// "dobbin-chat.json.unreadable-DATE". Fails as keepUnreadable() does, and then the file must
    /// not be written over.
    [[nodiscard]] Expected<Loaded> load(Timestamp now);

    /// Durably.
    [[nodiscard]] Expected<void> save(const std::vector<ChatTurn>& turns);

private:
    Storage& storage_;
    std::string path_;
};

} // namespace quillon
