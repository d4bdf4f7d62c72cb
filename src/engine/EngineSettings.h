#pragma once

#include <chrono>

namespace quillon {

struct EngineSettings {
    std::chrono::duration<double> settleTime{
        3.0}; ///< a file changed less than this ago is deferred
    std::chrono::milliseconds scriptTimeout{std::chrono::minutes(10)};
};

} // namespace quillon
