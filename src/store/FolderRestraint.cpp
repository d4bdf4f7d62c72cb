#include "store/FolderRestraint.h"

#include "store/StableHash.h"

namespace quillon {

FolderRestraint::FolderRestraint(const WatchedFolder& folder, Known known)
    : folderID_(folder.id), known_(std::move(known)) {
    for (const Rule& rule : folder.rules)
        rules_.insert(rule.id, stableHash(rule));
}

bool FolderRestraint::hasActed(const Rule& rule, const QString& fileKey) const {
    const auto hash = rules_.constFind(rule.id);
    return hash != rules_.constEnd() && known_.deeds.contains(stableHash(fileKey), *hash);
}

bool FolderRestraint::mayAct(const Rule& rule, const QString& fileKey) {
    const auto hash = rules_.constFind(rule.id);
    if (hash == rules_.constEnd())
        return true;
    const std::uint64_t file = stableHash(fileKey);
    if (known_.deeds.contains(file, *hash) || known_.failures.contains(file, *hash, known_.now))
        return false;
    if (!known_.rings.isOver(file, {.folderID = folderID_, .rule = *hash}))
        return true;
    stops_.push_back({.ruleID = rule.id, .fileKey = fileKey});
    return false;
}

} // namespace quillon
