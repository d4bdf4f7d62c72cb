#pragma once

#include <chrono>
#include <functional>

namespace quillon {

class RunRestraint;

struct EngineSettings {
    /// A file changed less than this ago is deferred.
    std::chrono::duration<double> settleTime{3.0};
    std::chrono::milliseconds scriptTimeout{std::chrono::minutes(10)};
    /// Asked before each file and while a script runs; false ends the run there. Empty: always.
    std::function<bool()> mayContinue = {};
    /// Borrowed for the run; none: a run may do everything again.
    RunRestraint* restraint = nullptr;
};

} // namespace quillon
