#pragma once

#include "engine/RunResult.h"
#include "platform/Error.h"

#include <QString>
#include <QUuid>

#include <cstdint>
#include <optional>

namespace quillon {

/// Why a folder is tidied.
enum class RunCause : std::uint8_t {
    automatic, ///< a change, a schedule, a rule that was added: what was done once stays done
    asked,     ///< the user wants it now: every rule acts again
};

/// What came of tidying a folder once.
struct RunReport {
    std::uint64_t number = 0; ///< as AppStore::runRules returned it
    QUuid folderID;
    QString folderName;
    RunCause cause = RunCause::automatic;
    RunResult run = {};
    std::size_t tested = 0;
    std::size_t deferred = 0;           ///< files that are still settling
    std::size_t stalled = 0;            ///< of these, downloads that somebody gave up
    std::size_t skippedNames = 0;       ///< names that are not valid UTF-8
    std::optional<Error> unlisted = {}; ///< why the folder could not be listed
    std::optional<Error> unsaved = {};  ///< why the result could not be saved
};

} // namespace quillon
