#pragma once

#include "model/LogEntry.h"
#include "platform/Error.h"
#include "platform/FileStatus.h"

#include <span>
#include <string>
#include <vector>

namespace quillon {

/// What is about to happen to one file.
struct Intent {
    LogEntry entry;    ///< as it will be logged; what is not known yet is empty
    FileStatus status; ///< the file before anything is done to it
    std::vector<std::string> targetFolders; ///< the folders its actions may put it in
};

/// Where a run writes down what it is about to do and what it has done, so that a crash loses
/// nothing that can be undone. Called on the run's thread.
class RunJournal {
public:
    virtual ~RunJournal() = default;

    /// Durable when it returns. On failure the run does nothing with these files.
    [[nodiscard]] virtual Expected<void> intend(std::span<const Intent> intents) = 0;

    /// What has happened to an intended file so far; called after each of its actions.
    virtual void record(const LogEntry& entry) = 0;
};

} // namespace quillon
