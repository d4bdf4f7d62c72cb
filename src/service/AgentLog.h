#pragma once

#include "platform/Clock.h"
#include "store/AppStore.h"

#include <QString>

#include <ostream>

namespace quillon {

/// What a running instance tells of itself: one line a happening, with the local time in front.
class AgentLog {
public:
    /// Borrows both.
    AgentLog(std::ostream& out, const Clock& clock) : out_(out), clock_(clock) {}

    void add(const QString& happening);

    /// A run that did something or failed; nothing for any other.
    void addRun(const RunReport& report);

    /// Why questions of the rules went without an answer. The same reasons as the last time are not
    /// told again.
    void addAnswers(const QuestionsOutcome& outcome);

    /// What came or went since the last call.
    void addWatchWarnings(const QStringList& warnings);

    /// That saving fails, or succeeds again.
    void addSaveError(const std::optional<Error>& error);

private:
    std::ostream& out_;
    const Clock& clock_;
    QStringList watchWarnings_;
    QStringList dobbinProblems_;
    bool savingFails_ = false;
};

} // namespace quillon
