#pragma once

#include "platform/FileNames.h"

#include <string>

namespace quillon {

/// Where Quillon's own data lies. All in one folder, so that one rename or one lock covers it.
struct StorePlaces {
    std::string folder;

    explicit StorePlaces(std::string dataFolder) : folder(std::move(dataFolder)) {}

    [[nodiscard]] std::string state() const { return joinPath(folder, "store.json"); }
    /// The state file as it was read at the last launch.
    [[nodiscard]] std::string previous() const { return joinPath(folder, "store.json.previous"); }
    [[nodiscard]] std::string journal() const { return joinPath(folder, "journal"); }
    [[nodiscard]] std::string memory() const { return joinPath(folder, "memory.json"); }
    /// The conversation with the assistant.
    [[nodiscard]] std::string chat() const { return joinPath(folder, "dobbin-chat.json"); }
    /// What the rules were made from that the assistant has written last.
    [[nodiscard]] std::string drafts() const { return joinPath(folder, "drafts.json"); }
    /// Which rules were suggested and dismissed.
    [[nodiscard]] std::string suggestions() const { return joinPath(folder, "suggestions.json"); }
    [[nodiscard]] std::string suggestionsLock() const {
        return joinPath(folder, "suggestions.lock");
    }
    [[nodiscard]] std::string lock() const { return joinPath(folder, "store.lock"); }
};

} // namespace quillon
