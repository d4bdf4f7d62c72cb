#pragma once

#include "store/AppStore.h"
#include "ui/Toasts.h"

namespace quillon {

/// Deletes the rule at once; a toast offers to put it back where it was. Borrows both for as long
/// as the toast is there.
void removeRule(const QUuid& ruleID, const QUuid& folderID, AppStore& store, Toasts& toasts);

} // namespace quillon
