#include "faults/Promise.h"

#include <algorithm>
#include <set>

namespace quillon::testing {

bool isHidden(const std::string& path) {
    return path.find("/.quillon-") != std::string::npos;
}

namespace {

bool isWithin(const std::string& path, const std::string& folder) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

/// Where a trash keeps the record of a file in its folder "files".
std::string recordOf(const std::string& trashed) {
    const std::size_t at = trashed.rfind("/files/");
    if (at == std::string::npos || trashed.find('/', at + 7) != std::string::npos)
        return {};
    return trashed.substr(0, at) + "/info/" + trashed.substr(at + 7) + ".trashinfo";
}

std::string decoded(const std::string& text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == '%' && i + 2 < text.size()) {
            bytes += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            bytes += text[i];
        }
    return bytes;
}

class Judge {
public:
    Judge(const World& world, const DiskState& after, const std::optional<Report>& report,
          const Excuses& excuses)
        : world_(world), after_(after), report_(report), excuses_(excuses) {}

    std::vector<std::string> judge() {
        othersAreUntouched();
        for (const Thing& thing : world_.things)
            judgeThing(thing);
        nothingElseIsVisible();
        if (report_ && !excuses_.leftovers && !isDoneButForClearing())
            nothingIsLeft();
        trashIsInOrder();
        return breaches_;
    }

private:
    void say(const std::string& sentence) { breaches_.push_back(sentence); }

    bool belongsToThing(const std::string& path) const {
        return std::ranges::any_of(world_.things, [&path](const Thing& thing) {
            return thing.law != Law::appears &&
                   (isWithin(path, thing.path) || path == recordOf(thing.path));
        });
    }

    void othersAreUntouched() {
        for (const auto& [path, item] : world_.before) {
            if (belongsToThing(path))
                continue;
            const auto now = after_.find(path);
            if (now == after_.end())
                say("somebody else's " + path + " is gone");
            else if (!item.isFolder() && (!now->second.isSameFileAs(item) ||
                                          !isSameItem(now->second, item, Likeness::whole)))
                say("somebody else's " + path + " was overwritten or changed");
            explained_.insert(path);
        }
    }

    const Claim* claimFor(const Thing& thing) const {
        if (report_)
            for (const Claim& claim : *report_)
                if (claim.thing == thing.path)
                    return &claim;
        return nullptr;
    }

    /// Visible places where the thing lies whole, in any of its versions.
    std::vector<std::string> placesOf(const Thing& thing, Likeness likeness) const {
        std::vector<std::string> places;
        for (const auto& [path, item] : after_) {
            const bool isOthers = world_.before.contains(path) && !isWithin(path, thing.path);
            if (!isHidden(path) && !isOthers &&
                std::ranges::any_of(thing.versions, [&](const DiskTree& version) {
                    return isTreeAt(after_, path, version, likeness);
                }))
                places.push_back(path);
        }
        return places;
    }

    void judgeThing(const Thing& thing) {
        const Claim* claim = claimFor(thing);
        const bool lossy = thing.contentsOnly || (claim != nullptr && !claim->losses.empty());
        const Likeness likeness = lossy ? Likeness::contents : Likeness::whole;
        const std::vector<std::string> places = placesOf(thing, likeness);
        for (const std::string& place : places)
            for (const auto& [name, item] : treeAt(after_, place))
                explained_.insert(place + name);
        switch (thing.law) {
        case Law::moves:
            return judgeMoved(thing, claim, places, likeness);
        case Law::copies:
            return judgeCopied(thing, claim, places);
        case Law::appears:
            return judgeAppeared(thing, claim, places);
        }
    }

    bool isLatestAt(const Thing& thing, const std::string& place, Likeness likeness) const {
        return isTreeAt(after_, place, thing.versions.back(), likeness);
    }

    void judgeMoved(const Thing& thing, const Claim* claim, const std::vector<std::string>& places,
                    Likeness likeness) {
        const bool isAtSource = std::ranges::find(places, thing.path) != places.end();
        // Between publishing and removing, and nowhere else, two names of it may be found.
        const bool mayDouble = excuses_.doubles || (!report_ && world_.crossesDevices);
        const bool isLeftHalfway =
            claim != nullptr && !claim->succeeded && claim->place != thing.path;
        for (const DiskTree& version : thing.versions) {
            const auto count = std::ranges::count_if(places, [&](const std::string& place) {
                return isTreeAt(after_, place, version, likeness);
            });
            const bool isLatest = &version == &thing.versions.back();
            if (isLatest && count == 0 && !(excuses_.lostUpdate && !places.empty()))
                say(thing.path + " is whole nowhere");
            if (count > (mayDouble && isAtSource ? 2 : 1))
                say(thing.path + " is there " + std::to_string(count) + " times, at last as " +
                    places.back());
        }
        if ((mayDouble || isLeftHalfway) && !isAtSource && !places.empty())
            excuseRemains(thing);
        if (!report_)
            return;
        const std::string place = claim != nullptr ? claim->place : thing.path;
        if (std::ranges::find(places, place) == places.end())
            say(thing.path + " is said to be " + (place == thing.path ? "still there" : place) +
                ", and is not" + (claim != nullptr ? " (" + claim->message + ")" : ""));
    }

    /// A folder that lies whole elsewhere is taken away file by file.
    void excuseRemains(const Thing& thing) {
        for (const auto& [name, item] : treeAt(after_, thing.path)) {
            const auto whole = thing.versions.back().find(name);
            if (whole != thing.versions.back().end() && whole->second.isSameFileAs(item))
                explained_.insert(thing.path + name);
        }
    }

    void judgeCopied(const Thing& thing, const Claim* claim,
                     const std::vector<std::string>& places) {
        if (!isLatestAt(thing, thing.path, Likeness::whole))
            say(thing.path + " was to be copied and is not whole any more");
        std::vector<std::string> copies = places;
        std::erase(copies, thing.path);
        if (copies.size() > 1)
            say(thing.path + " was copied more than once");
        judgeMade(thing, claim, copies);
    }

    void judgeAppeared(const Thing& thing, const Claim* claim,
                       const std::vector<std::string>& places) {
        if (places.size() > 1)
            say(thing.path + " was made more than once");
        judgeMade(thing, claim, places);
    }

    void judgeMade(const Thing& thing, const Claim* claim, const std::vector<std::string>& made) {
        if (!report_ || claim == nullptr)
            return;
        const bool isThere = std::ranges::find(made, claim->place) != made.end();
        if (claim->succeeded && !isThere)
            say("what came of " + thing.path + " is said to be whole at " + claim->place +
                ", and is not");
        if (!claim->succeeded && !made.empty() && !excuses_.doubles)
            say("failed, and yet there is " + made.front() + " (" + claim->message + ")");
    }

    bool isTrashRecord(const std::string& path) const {
        return path.ends_with(".trashinfo") && path.find("/info/") != std::string::npos;
    }

    void nothingElseIsVisible() {
        for (const auto& [path, item] : after_) {
            if (explained_.contains(path) || isHidden(path) || isTrashRecord(path) ||
                path.ends_with("/directorysizes"))
                continue;
            if (!item.isFolder())
                say("half-written or unknown: " + path + ", " +
                    std::to_string(item.content.size()) + " bytes");
            else if (!world_.mayAppear(path))
                say("a folder came to be: " + path);
        }
    }

    /// Whoever unpacked everything and then can't take the empty staging folder away has not
    /// failed.
    bool isDoneButForClearing() const {
        const bool unpacks =
            std::ranges::find(world_.things, Law::appears, &Thing::law) != world_.things.end();
        return excuses_.faultyClearing && unpacks &&
               std::ranges::all_of(*report_, &Claim::succeeded);
    }

    void nothingIsLeft() {
        for (const auto& [path, item] : after_)
            if (isHidden(path))
                say("left behind: " + path);
    }

    /// Every trashed file has a record that leads back to where it was; a finished operation leaves
    /// no record without a file.
    void trashIsInOrder() {
        for (const auto& [path, item] : after_) {
            if (const std::string record = recordOf(path); !record.empty())
                judgeTrashed(path, record);
            if (isTrashRecord(path) && report_ && !excuses_.leftovers) {
                const std::size_t at = path.rfind("/info/");
                const std::string name = path.substr(at + 6, path.size() - at - 16);
                if (!after_.contains(path.substr(0, at) + "/files/" + name))
                    say("a trash record without its file: " + path);
            }
        }
    }

    void judgeTrashed(const std::string& path, const std::string& recordPath) {
        const bool wasThere = world_.before.contains(path);
        if (wasThere && !belongsToThing(path))
            return;
        const auto record = after_.find(recordPath);
        if (record == after_.end())
            return say("a trashed file without its record: " + path);
        if (wasThere)
            return;
        const std::string& text = record->second.content;
        const std::size_t at = text.find("\nPath=");
        const std::string name =
            at == std::string::npos
                ? ""
                : decoded(text.substr(at + 6, text.find('\n', at + 1) - at - 6));
        const bool leadsBack =
            !name.empty() && std::ranges::any_of(world_.things, [&](const Thing& t) {
                return t.path == name || (name.front() != '/' && t.path.ends_with("/" + name));
            });
        if (!text.starts_with("[Trash Info]\n") || !leadsBack ||
            text.find("\nDeletionDate=") == std::string::npos)
            say("the trash record of " + path + " is wrong: " + text);
    }

    const World& world_;
    const DiskState& after_;
    const std::optional<Report>& report_;
    const Excuses& excuses_;
    std::set<std::string> explained_;
    std::vector<std::string> breaches_;
};

} // namespace

std::vector<std::string> forgotten(const World& world, const DiskState& after,
                                   const Report& recovered) {
    std::vector<std::string> sentences;
    for (const Thing& thing : world.things) {
        const auto leadsThere = [&](const Claim& claim) {
            return claim.thing == thing.path &&
                   isTreeAt(after, claim.place, thing.versions.back(), Likeness::whole);
        };
        if (thing.law == Law::moves && !after.contains(thing.path) &&
            std::ranges::none_of(recovered, leadsThere))
            sentences.push_back("nothing leads back to " + thing.path);
        for (const Claim& claim : recovered)
            if (thing.law == Law::moves && claim.thing == thing.path && !leadsThere(claim))
                sentences.push_back("the log is wrong about " + thing.path + ": " + claim.place);
    }
    return sentences;
}

std::vector<std::string> breaches(const World& world, const DiskState& after,
                                  const std::optional<Report>& report, const Excuses& excuses) {
    return Judge(world, after, report, excuses).judge();
}

} // namespace quillon::testing
