#pragma once

#include "assistant/AIRequest.h"
#include "platform/Error.h"

#include <QCoroTask>
#include <QString>

namespace quillon {

/// The one way to a language model, whichever one the user has chosen. The thread that made it.
class ModelAccess {
public:
    virtual ~ModelAccess() = default;

    /// The answer: JSON that fits the schema when the request has one, else text. What it says is
    /// data, to be checked like any other input. Fails with a sentence that can be shown as it
    /// stands. Several requests may be under way at once, and nothing is tried twice. A request
    /// whose ModelAccess goes away fails in that moment: whoever waits must not assume that
    /// anything else is still there.
    [[nodiscard]] virtual QCoro::Task<Expected<QString>> send(AIRequest request) = 0;

    /// Whether the user lets models see what is in files.
    [[nodiscard]] virtual bool readContents() const = 0;
};

} // namespace quillon
