#pragma once

// What it takes to answer a question about what Quillon has done, but for asking the model:
//
//   isHelpQuestion() → helpAnswer(), else
//   relevantEntries() → conflicts() → compose() → (the model) → suggestsChange()
//   → (the model) → actionsFromJson() and fixes()

#include "assistant/AskPrompts.h"
#include "assistant/DobbinAction.h"
#include "assistant/HelpQuestion.h"
#include "assistant/RelevantEntries.h"
#include "assistant/RuleConflicts.h"
#include "assistant/SuggestedChanges.h"
#include "assistant/TokenEstimate.h"
