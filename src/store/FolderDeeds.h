#pragma once

#include "platform/Clock.h"

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QSet>

#include <cstdint>
#include <optional>

namespace quillon {

/// Which rules of one folder have acted on which of its files, all by their stable hashes. A copy
/// is cheap and another thread may use it.
class FolderDeeds {
public:
    [[nodiscard]] bool contains(std::uint64_t file, std::uint64_t rule) const;
    [[nodiscard]] qsizetype fileCount() const { return deeds_.size(); }

    void add(std::uint64_t file, std::uint64_t rule, Timestamp now);
    /// The file has become another one, by its key, through what a rule did to it.
    void carry(std::uint64_t before, std::uint64_t after);
    void forget(std::uint64_t file) { deeds_.remove(file); }

    /// Forgets the files that are not among `seen`, unless a rule has acted on them just now: they
    /// may still be settling, and then no run sees them. Forgets rules that are not among `rules`.
    void prune(const QSet<std::uint64_t>& seen, const QSet<std::uint64_t>& rules, Timestamp now);

    [[nodiscard]] QJsonObject toJson() const;
    /// Nothing when it is not what toJson() gives.
    [[nodiscard]] static std::optional<FolderDeeds> fromJson(const QJsonObject& json);

private:
    struct Deeds {
        QList<std::uint64_t> rules;
        Timestamp last = {};
    };
    QHash<std::uint64_t, Deeds> deeds_;
};

} // namespace quillon
