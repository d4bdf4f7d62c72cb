#pragma once

#include "engine/CompiledRule.h"
#include "engine/DateFormats.h"
#include "engine/EngineSettings.h"
#include "engine/FileJudge.h"
#include "engine/KindClassifier.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"

#include <QHash>
#include <QStringList>
#include <QUuid>

#include <string>

namespace quillon {

/// Says what rules would do to the files of one folder. Counts along, so files are to come in the
/// order in which a run takes them. One thread.
class ActionForecast {
public:
    /// Borrows all of it; `folder` is absolute.
    ActionForecast(const Platform& platform, FileJudge& judge, const EngineSettings& settings,
                   const std::string& folder)
        : platform_(platform)
        , judge_(judge)
        , settings_(settings)
        , folder_(folder)
        , kinds_(platform.contentTypes) {}

    /// A phrase an action.
    [[nodiscard]] QStringList phrases(const ListedFile& file, const CompiledRule& rule);

private:
    const Platform& platform_;
    FileJudge& judge_;
    const EngineSettings& settings_;
    const std::string& folder_;
    KindClassifier kinds_;
    DateFormats dates_;
    QHash<QUuid, unsigned> counters_;
};

} // namespace quillon
