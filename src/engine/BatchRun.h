#pragma once

#include "engine/Actions.h"
#include "engine/CompiledRule.h"
#include "engine/DateFormats.h"
#include "engine/FirstMatch.h"
#include "engine/RuleEngine.h"

#include <QHash>

#include <optional>
#include <span>
#include <vector>

namespace quillon {

/// One run over one batch of files: match, write down the intents, act, one group at a time. Used
/// once.
class BatchRun {
public:
    struct Setup {
        const Platform& platform;
        FileJudge& judge;
        const EngineSettings& settings;
        const WatchedFolder& folder;
        std::optional<QUuid> batchID;
        RunJournal& journal;
        const Progress& progress;
    };

    BatchRun(const Setup& setup, const ReadyFiles& items, const std::vector<Rule>& rules,
             const QSet<QString>& skip);

    [[nodiscard]] RunResult run();

private:
    /// A file that a rule has taken.
    struct Taken {
        const ListedFile* file;
        const CompiledRule* rule;
        ActionContext context;
        Intent intent;
    };

    [[nodiscard]] std::vector<Taken> take(std::span<const ListedFile> files);
    [[nodiscard]] Taken planned(const ListedFile& file, const CompiledRule& rule);
    [[nodiscard]] Expected<void> writeIntents(std::span<const Taken> group);
    void act(Taken& taken);
    void report(std::size_t done) const;

    Setup setup_;
    const ReadyFiles& items_;
    const QSet<QString>& skip_;
    std::vector<CompiledRule> rules_;
    std::size_t groupSize_;
    KindClassifier kinds_;
    DateFormats dates_;
    QHash<QUuid, unsigned> counters_;
    RunResult result_;
};

} // namespace quillon
