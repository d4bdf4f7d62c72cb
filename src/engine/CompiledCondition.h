#pragma once

#include "engine/FileFacts.h"
#include "engine/FileJudge.h"
#include "platform/Clock.h"

#include <QStringList>

#include <functional>

namespace quillon {

class RunRestraint;

/// What a condition sees while it is tested.
struct MatchContext {
    FileFacts& file;
    FileJudge& judge;
    Timestamp now;
    const RunRestraint* restraint = nullptr; ///< none: nothing has been done before
};

enum class Truth { no, yes, unknown };

[[nodiscard]] inline Truth truth(bool holds) {
    return holds ? Truth::yes : Truth::no;
}

/// A condition ready to be tested many times: pattern compiled, numbers and days parsed, text
/// lower-cased. `no` whatever the operator when its value can't be understood; `unknown` only while
/// the assistant's answer is outstanding. Safe to call from several threads, each with its own
/// context.
using CompiledCondition = std::function<Truth(MatchContext&)>;

/// The capture groups of a pattern in the text it is about; empty when it isn't found there.
using CompiledCaptures = std::function<QStringList(FileFacts&)>;

} // namespace quillon
