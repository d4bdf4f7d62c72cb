#pragma once

#include "platform/Clock.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <cstdint>
#include <optional>

namespace quillon {

/// A rule of a folder that takes part in handing a file on.
struct RingParty {
    QUuid folderID;
    std::uint64_t rule = 0; ///< its stable hash

    bool operator==(const RingParty&) const = default;
};

/// The way of one file from folder to folder.
class Travel {
public:
    [[nodiscard]] bool isEmpty() const { return steps_.isEmpty(); }
    [[nodiscard]] unsigned laps(const RingParty& party) const;
    void add(const RingParty& party, Timestamp now);
    [[nodiscard]] Timestamp lastStep() const { return last_; }
    /// Those that have acted since `first` did, `first` among them.
    [[nodiscard]] QList<RingParty> partiesSince(const RingParty& first) const;

private:
    struct Step {
        RingParty party;
        unsigned laps = 0;
    };
    QList<Step> steps_; ///< in the order in which the parties first acted
    Timestamp last_ = {};
};

/// Follows the files that rules hand from one watched folder to another, by the stable hash of each
/// file's key where it is now. A copy is cheap and another thread may use it.
class RingWatch {
public:
    /// Whether the party has had its three laps with this file.
    [[nodiscard]] bool isOver(std::uint64_t file, const RingParty& party) const;

    [[nodiscard]] bool follows(std::uint64_t file) const { return travels_.contains(file); }
    /// No longer followed; an empty travel for a file that wasn't.
    Travel take(std::uint64_t file) { return travels_.take(file); }
    /// Followed from here on. When there are too many, those that have stood still for long go, and
    /// else this one is not followed.
    void follow(std::uint64_t file, const Travel& travel, Timestamp now);

private:
    QHash<std::uint64_t, Travel> travels_;
};

} // namespace quillon
