#include "store/RunMemory.h"

#include "engine/RuleEngine.h"
#include "model/JsonText.h"
#include "model/Uuid.h"
#include "store/StableHash.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostFiles = 8'000;
constexpr auto foldersKey = "folders"_L1;

/// "“A” (Downloads), “B” (Desktop) and “C” (Papers)"
QString spokenList(QStringList names) {
    if (names.isEmpty())
        return {};
    const QString last = names.takeLast();
    return names.isEmpty() ? last : names.join(u", "_s) + u" and "_s + last;
}

QString fileName(const QString& path) {
    return path.section(u'/', -1);
}

} // namespace

bool RunMemory::Place::holds(QStringView file) const {
    const QString folder = path + u'/';
    return file.startsWith(folder) && (isRecursive || !file.sliced(folder.size()).contains(u'/'));
}

RunMemory::Place RunMemory::placeOf(const WatchedFolder& folder) {
    Place place{.path = folder.path, .isRecursive = folder.isRecursive};
    while (place.path.endsWith(u'/'))
        place.path.chop(1);
    return place;
}

bool RunMemory::liesInAnother(QStringView file, const QUuid& folderID) const {
    for (auto place = places_.begin(); place != places_.end(); ++place)
        if (place.key() != folderID && place->holds(file))
            return true;
    return false;
}

std::unique_ptr<FolderRestraint> RunMemory::restraint(const WatchedFolder& folder,
                                                      Timestamp now) const {
    return std::make_unique<FolderRestraint>(
        folder, FolderRestraint::Known{.deeds = deeds_.value(folder.id),
                                       .failures = failures_.value(folder.id),
                                       .rings = rings_,
                                       .now = now});
}

std::vector<LogEntry> RunMemory::absorb(const WatchedFolder& folder, const RunResult& run,
                                        const FolderRestraint* restraint, Timestamp now) {
    places_.insert(folder.id, placeOf(folder));
    QHash<QUuid, std::uint64_t> rules;
    for (const Rule& rule : folder.rules) {
        const std::uint64_t hash = stableHash(rule);
        rules.insert(rule.id, hash);
        names_[folder.id].insert(hash, u"“%1” (%2)"_s.arg(rule.name, folder.name()));
    }

    std::vector<LogEntry> entries;
    if (restraint)
        for (const FolderRestraint::Stop& stop : restraint->stops())
            for (const Rule& rule : folder.rules)
                if (rule.id == stop.ruleID)
                    stopRing(folder, rule, {folder.id, rules.value(rule.id)}, stop.fileKey, now,
                             entries);
    for (const HandledFile& file : run.handled)
        if (const auto rule = rules.constFind(file.ruleID); rule != rules.constEnd())
            handle(file, {folder.id, *rule}, restraint != nullptr, now);
    RecentFailures& failures = failures_[folder.id];
    failures.forgetOld(now);
    for (const FailedFile& file : run.failed)
        failures.add(stableHash(file.key), rules.value(file.ruleID), now);
    prune(folder.id, run, {rules.begin(), rules.end()}, now);
    return entries;
}

void RunMemory::leaveAlone(const std::vector<ActedOn>& files,
                           const std::vector<WatchedFolder>& folders, Timestamp now) {
    QHash<QUuid, RunResult> results;
    for (const ActedOn& file : files)
        for (const WatchedFolder& folder : folders)
            if (folder.id == file.folderID)
                for (const Rule& rule : folder.rules)
                    if (rule.name == file.ruleName)
                        results[folder.id].handled.push_back({.ruleID = rule.id,
                                                              .keyBefore = file.fileKey,
                                                              .keyAfter = file.fileKey});
    for (const WatchedFolder& folder : folders)
        if (const auto found = results.constFind(folder.id); found != results.constEnd())
            std::ignore = absorb(folder, *found, nullptr, now);
}

void RunMemory::stopRing(const WatchedFolder& folder, const Rule& rule, const RingParty& party,
                         const QString& fileKey, Timestamp now, std::vector<LogEntry>& entries) {
    const std::uint64_t file = stableHash(fileKey);
    if (!rings_.isOver(file, party))
        return;
    QStringList names;
    for (const RingParty& other : rings_.take(file).partiesSince(party))
        names.append(names_.value(other.folderID).value(other.rule));
    deeds_[folder.id].add(file, party.rule, now);
    changed_ = true;

    const QString path = keyPath(fileKey);
    entries.push_back(
        {.date = now,
         .fileName = fileName(path),
         .ruleName = rule.name,
         .actionSummary =
             u"stopped: the rules %1 keep handing this file to each other"_s.arg(spokenList(names)),
         .folderName = folder.name(),
         .folderID = folder.id,
         .isError = true,
         .originalPath = path,
         .currentPath = path});
}

void RunMemory::handle(const HandledFile& file, const RingParty& party, bool isAutomatic,
                       Timestamp now) {
    const std::uint64_t before = stableHash(file.keyBefore);
    const bool wasFollowed = rings_.follows(before);
    Travel travel = rings_.take(before);
    if (isAutomatic)
        travel.add(party, now);

    FolderDeeds& deeds = deeds_[party.folderID];
    const Place& place = places_[party.folderID];
    const auto arrive = [&](const QString& key, bool isFollowed) {
        const QString path = keyPath(key);
        if (place.holds(path))
            deeds.add(stableHash(key), party.rule, now);
        if (isAutomatic && (isFollowed || liesInAnother(path, party.folderID)))
            rings_.follow(stableHash(key), travel, now);
    };
    if (place.holds(keyPath(file.keyAfter)))
        deeds.carry(before, stableHash(file.keyAfter));
    else
        deeds.forget(before);
    if (!file.keyAfter.isEmpty())
        arrive(file.keyAfter, wasFollowed);
    for (const QString& key : file.copyKeys)
        arrive(key, false);
    changed_ = true;
}

void RunMemory::prune(const QUuid& folderID, const RunResult& run, const QSet<std::uint64_t>& rules,
                      Timestamp now) {
    FolderDeeds& deeds = deeds_[folderID];
    const bool sawAll = !run.interrupted && !run.stopped && !run.seenKeys.isEmpty();
    if (deeds.fileCount() <= mostFiles || !sawAll)
        return;
    QSet<std::uint64_t> seen;
    for (const QString& key : run.seenKeys)
        seen.insert(stableHash(key));
    for (const HandledFile& file : run.handled)
        seen.insert(stableHash(file.keyAfter));
    deeds.prune(seen, rules, now);
    changed_ = true;
}

void RunMemory::keepOnly(const std::vector<WatchedFolder>& folders) {
    places_.clear();
    for (const WatchedFolder& folder : folders)
        places_.insert(folder.id, placeOf(folder));
    const auto isGone = [&](const auto& entry) { return !places_.contains(entry.key()); };
    if (deeds_.removeIf(isGone) > 0)
        changed_ = true;
    names_.removeIf(isGone);
    failures_.removeIf(isGone);
}

QByteArray RunMemory::encode() const {
    QJsonObject folders;
    for (auto entry = deeds_.begin(); entry != deeds_.end(); ++entry)
        if (entry->fileCount() > 0)
            folders.insert(uuidText(entry.key()), entry->toJson());
    changed_ = false;
    return QJsonDocument(QJsonObject{{foldersKey, folders}}).toJson(QJsonDocument::Compact);
}

void RunMemory::decode(const QByteArray& bytes) {
    deeds_.clear();
    rings_ = {};
    changed_ = false;
    const QJsonObject folders =
        parseJson(bytes).value_or(QJsonValue()).toObject().value(foldersKey).toObject();
    QHash<QUuid, FolderDeeds> decoded;
    for (auto entry = folders.begin(); entry != folders.end(); ++entry) {
        const QUuid folderID(entry.key());
        const auto deeds = FolderDeeds::fromJson(entry->toObject());
        if (folderID.isNull() || !entry->isObject() || !deeds)
            return;
        decoded.insert(folderID, *deeds);
    }
    deeds_ = std::move(decoded);
}

} // namespace quillon
