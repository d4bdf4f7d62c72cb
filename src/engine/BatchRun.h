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
    };

    /// Files handled under one sync of the journal.
    struct Group {
        std::vector<Taken> taken;
        std::vector<Intent> intents; ///< of the taken files, in their order
        std::size_t end = 0;         ///< index of the first file after the group
    };

    [[nodiscard]] Group take(std::size_t start);
    [[nodiscard]] std::vector<const ListedFile*> unskipped(std::span<const ListedFile> files);
    [[nodiscard]] bool mayAct(const CompiledRule& rule, const ListedFile& file) const;
    void addWaiting(const ListedFile& file);
    [[nodiscard]] Taken taken(const ListedFile& file, const CompiledRule& rule);
    [[nodiscard]] Intent intent(const Taken& taken) const;
    void act(Taken& taken, LogEntry& entry);
    [[nodiscard]] QString listedKey(const ListedFile& file) const;
    [[nodiscard]] QString currentKey(const std::string& path) const;
    void report(std::size_t done) const;

    Setup setup_;
    bool keepsKeys_; ///< keys are remembered by folder: for one without an identity nobody will
    const ReadyFiles& items_;
    const QSet<QString>& skip_;
    std::vector<CompiledRule> rules_;
    bool asksJudge_ = false; ///< some rule needs the assistant
    KindClassifier kinds_;
    QString folderName_;
    DateFormats dates_;
    QHash<QUuid, unsigned> counters_;
    RunResult result_;
};

} // namespace quillon
