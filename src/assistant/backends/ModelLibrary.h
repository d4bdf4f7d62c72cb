#pragma once

#include "assistant/backends/LocalModels.h"
#include "assistant/backends/OnDeviceStatus.h"
#include "platform/Error.h"

#include <QCoroTask>
#include <QList>
#include <QString>

#include <string_view>

namespace quillon {

/// What to download for somebody who has no preference: small enough for a machine without a
/// graphics card, and good enough at short answers in a given form. About 2 GB.
inline constexpr std::u16string_view recommendedModel = u"llama3.2:3b";

/// The models of the server on this machine.
struct ModelLibrary {
    LocalModelState state = {};       ///< of the one that is asked
    QList<LocalModel> installed = {}; ///< none when the server doesn't say
};

/// `host` and `chosen` are the texts of settings. On the event loop's thread.
[[nodiscard]] QCoro::Task<ModelLibrary> lookAtModels(QString host, QString chosen);

} // namespace quillon
