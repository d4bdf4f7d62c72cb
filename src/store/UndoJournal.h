#pragma once

#include "engine/RunJournal.h"
#include "platform/Storage.h"

#include <memory>
#include <string>

namespace quillon {

/// The journal of runs whose results are not in the state file yet: intents are on the disk before
/// anything is done, outcomes survive the end of the process. One thread at a time.
class UndoJournal final : public RunJournal {
public:
    /// `temporaryTag` is the one that this process's hidden temporaries carry.
    UndoJournal(std::unique_ptr<AppendFile> file, std::string temporaryTag)
        : file_(std::move(file)), temporaryTag_(std::move(temporaryTag)) {}

    [[nodiscard]] Expected<void> intend(std::span<const Intent> intents) override;
    void record(const LogEntry& entry) override;

    /// To be called once the state file holds what the journal tells. Until it has succeeded, no
    /// further intents are taken.
    [[nodiscard]] Expected<void> clear();

private:
    std::unique_ptr<AppendFile> file_;
    std::string temporaryTag_;
    bool isEmpty_ = true;
    bool clearFailed_ = false;
};

} // namespace quillon
