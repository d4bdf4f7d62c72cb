#pragma once

#include "assistant/RuleWriter.h"
#include "cli/LineBuffer.h"
#include "cli/Refusal.h"
#include "service/Services.h"
#include "store/JsonStream.h"

#include <QStringList>

namespace quillon {

/// What a drafted rule would catch in its folder now.
struct DraftCatch {
    QStringList matches; ///< names
    QStringList asks;    ///< names of the files about which Dobbin would first be asked
    std::size_t tested = 0;
};

/// A drafted rule with what it would catch, as commands show it.
struct ShownDraft {
    RuleDraft draft;
    DraftCatch caught;
};

/// Has a model write the rule and looks what it would catch. Changes nothing, and asks no model
/// about files. A refusal says why there is no draft; its sentence is empty when the command was
/// called off.
[[nodiscard]] Chosen<ShownDraft> draftRule(const QString& sentence, const RulePlace& place,
                                           const Console& console, Services& services);

/// The rule in words, the model's note, the warnings, and what it would catch.
void addDraft(const ShownDraft& shown, LineBuffer& lines);

/// The same as the keys from "rule" to "asks" of an object that has been begun.
void writeDraft(JsonStream& json, const ShownDraft& shown);

/// Adds the rule to its folder, which must be watched, and tidies it. A draft that needs consent is
/// saved only when `isAgreed`, or when a person at the terminal says yes; otherwise it says why not
/// and changes nothing. Prints what the run did, or, as JSON, only the runs.
[[nodiscard]] ExitCode saveDraft(const RuleDraft& draft, const std::string& folder, bool isAgreed,
                                 bool json, const Console& console, Services& services);

} // namespace quillon
