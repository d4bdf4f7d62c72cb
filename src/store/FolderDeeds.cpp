#include "store/FolderDeeds.h"

#include <algorithm>
#include <map>
#include <vector>

namespace quillon {
namespace {

// Longer than any settle time; what has gone by then is seen, or is not there.
constexpr auto stillYoung = std::chrono::minutes(10);

constexpr int hashDigits = 16;

QString hexText(std::uint64_t hash) {
    return QString::number(hash, 16).rightJustified(hashDigits, u'0');
}

std::optional<std::uint64_t> hashOf(QStringView hex) {
    bool isNumber = false;
    const std::uint64_t hash = hex.toULongLong(&isNumber, 16);
    return isNumber && hex.size() == hashDigits ? std::optional(hash) : std::nullopt;
}

} // namespace

bool FolderDeeds::contains(std::uint64_t file, std::uint64_t rule) const {
    const auto found = deeds_.constFind(file);
    return found != deeds_.constEnd() && found->rules.contains(rule);
}

void FolderDeeds::add(std::uint64_t file, std::uint64_t rule, Timestamp now) {
    Deeds& deeds = deeds_[file];
    if (!deeds.rules.contains(rule))
        deeds.rules.append(rule);
    deeds.last = now;
}

void FolderDeeds::carry(std::uint64_t before, std::uint64_t after) {
    if (before != after && deeds_.contains(before))
        deeds_.insert(after, deeds_.take(before));
}

void FolderDeeds::prune(const QSet<std::uint64_t>& seen, const QSet<std::uint64_t>& rules,
                        Timestamp now) {
    deeds_.removeIf([&](const auto& entry) {
        Deeds& deeds = entry.value();
        deeds.rules.removeIf([&](std::uint64_t rule) { return !rules.contains(rule); });
        const bool isThere = seen.contains(entry.key()) || now - deeds.last < stillYoung;
        return deeds.rules.isEmpty() || !isThere;
    });
}

QJsonObject FolderDeeds::toJson() const {
    std::map<std::uint64_t, std::vector<std::uint64_t>> filesByRule;
    for (auto entry = deeds_.begin(); entry != deeds_.end(); ++entry)
        for (const std::uint64_t rule : entry->rules)
            filesByRule[rule].push_back(entry.key());

    QJsonObject json;
    for (auto& [rule, files] : filesByRule) {
        std::ranges::sort(files);
        QString text;
        text.reserve(qsizetype(files.size()) * hashDigits);
        for (const std::uint64_t file : files)
            text += hexText(file);
        json.insert(hexText(rule), text);
    }
    return json;
}

std::optional<FolderDeeds> FolderDeeds::fromJson(const QJsonObject& json) {
    FolderDeeds deeds;
    for (auto entry = json.begin(); entry != json.end(); ++entry) {
        const auto rule = hashOf(entry.key());
        const QString files = entry->toString();
        if (!rule || !entry->isString())
            return std::nullopt;
        for (qsizetype start = 0; start < files.size(); start += hashDigits) {
            const auto file = hashOf(QStringView(files).sliced(start).first(
                std::min<qsizetype>(hashDigits, files.size() - start)));
            if (!file)
                return std::nullopt;
            deeds.add(*file, *rule, Timestamp());
        }
    }
    return deeds;
}

} // namespace quillon
