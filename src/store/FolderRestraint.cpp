#include "store/FolderRestraint.h"

#include "store/StableHash.h"

namespace quillon {

FolderRestraint::FolderRestraint(const WatchedFolder& folder, FolderDeeds deeds, RingWatch rings)
    : folderID_(folder.id), deeds_(std::move(deeds)), rings_(std::move(rings)) {
    for (const Rule& rule : folder.rules)
        rules_.insert(rule.id, stableHash(rule));
}

bool FolderRestraint::hasActed(const Rule& rule, const QString& fileKey) const {
    const auto known = rules_.constFind(rule.id);
    return known != rules_.constEnd() && deeds_.contains(stableHash(fileKey), *known);
}

bool FolderRestraint::mayAct(const Rule& rule, const QString& fileKey) {
    const auto known = rules_.constFind(rule.id);
    if (known == rules_.constEnd())
        return true;
    const std::uint64_t file = stableHash(fileKey);
    if (deeds_.contains(file, *known))
        return false;
    if (!rings_.isOver(file, {.folderID = folderID_, .rule = *known}))
        return true;
    stops_.push_back({.ruleID = rule.id, .fileKey = fileKey});
    return false;
}

} // namespace quillon
