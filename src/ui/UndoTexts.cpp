#include "ui/UndoTexts.h"

#include "ui/CountTexts.h"

#include <algorithm>

namespace quillon {

QString undoText(const AppStore::UndoReport& report) {
    if (report.unsaved)
        return report.unsaved->message;
    if (report.outcomes.empty())
        return {};
    const auto restored = std::size_t(std::ranges::count_if(
        report.outcomes, [](const UndoOutcome& outcome) { return outcome.restored.has_value(); }));
    return putBackText(restored, report.outcomes.size() - restored);
}

} // namespace quillon
