#pragma once

#include "model/Rule.h"
#include "model/ScheduleInterval.h"
#include "model/TidyTiming.h"
#include "platform/Error.h"

#include <QJsonObject>
#include <QString>
#include <QUuid>

#include <optional>
#include <vector>

namespace quillon {

class JsonReader;

/// A folder that the user has added, with its rules in the order in which they are tried.
struct WatchedFolder {
    QUuid id = QUuid::createUuid();
    QString path = {}; ///< absolute
    bool isWatching = true;
    std::vector<Rule> rules = {};
    std::optional<int> colorIndex = std::nullopt;
    bool isRecursive = false;
    bool onlyNewFiles = false;
    bool skipOnlineOnly = false;
    std::optional<QString> symbolName = std::nullopt;
    ScheduleInterval schedule = ScheduleInterval::off;

    bool operator==(const WatchedFolder&) const = default;

    /// The last component of the path.
    [[nodiscard]] QString name() const;

    [[nodiscard]] TidyTiming timing() const { return timingOf(isWatching, schedule); }
    void setTiming(TidyTiming timing) {
        isWatching = watchesLive(timing);
        schedule = scheduleOf(timing);
    }
};

/// Whether a path lies in the folder of a cloud provider.
[[nodiscard]] bool isCloudPath(const QString& path);

[[nodiscard]] QJsonObject toJson(const WatchedFolder& folder);
[[nodiscard]] Expected<WatchedFolder> folderFromJson(const JsonReader& json);

} // namespace quillon
