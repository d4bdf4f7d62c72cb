#pragma once

#include "engine/FileJudge.h"
#include "engine/RuleEngine.h"
#include "model/WatchedFolder.h"
#include "platform/Platform.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace quillon {

/// What becomes of a file in a run.
enum class FileFate : std::uint8_t { changed, leftAlone, waiting };

inline constexpr std::size_t fileFates = 3;

/// A file, and what a run now would do to it.
struct ForecastFile {
    QString name = {};
    FileFate fate = FileFate::leftAlone;
    int rule = -1;            ///< its place among all of the folder's rules, for a changed file
    QStringList actions = {}; ///< "Move to Invoices"
};

/// What a run now would do in a folder.
struct RunForecast {
    std::vector<ForecastFile> files = {}; ///< in listing order
    std::array<std::size_t, fileFates> counts = {};
    std::size_t deferred = 0; ///< still being written, and not among the files
};

/// `skip` holds the keys of files that the folder leaves alone. Fails as FileSystem::list does;
/// once it `mayContinue` no more, what it gives is of no use. Blocks, and uses every processor.
[[nodiscard]] Expected<RunForecast> runForecast(const WatchedFolder& folder,
                                                const QSet<QString>& skip, const Platform& platform,
                                                FileJudge& judge,
                                                const std::function<bool()>& mayContinue);

} // namespace quillon
