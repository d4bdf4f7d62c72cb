#pragma once

#include "engine/FileJudge.h"
#include "engine/RuleEngine.h"
#include "model/Rule.h"
#include "platform/Platform.h"
#include "ui/editor/ExampleFile.h"

#include <QStringList>

#include <functional>
#include <optional>

namespace quillon {

/// What a rule would catch among files that may be tidied now.
struct RuleCatch {
    std::size_t tested = 0;
    std::size_t caught = 0;
    std::size_t waiting = 0; ///< only Dobbin knows, and hasn't been asked
    QStringList names = {};  ///< of the first that are caught, ten at most
    /// The first that is caught, or else the first of all.
    std::optional<ExampleFile> example = {};
};

/// A rule is tested even when it is switched off. Asks before every few thousand files whether it
/// `mayContinue`; nothing when it may not. Blocks, and uses every processor.
[[nodiscard]] std::optional<RuleCatch> ruleCatch(const Rule& rule, const ReadyFiles& files,
                                                 const Platform& platform, FileJudge& judge,
                                                 const std::function<bool()>& mayContinue);

} // namespace quillon
