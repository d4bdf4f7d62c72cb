#include "cli/UnknownWord.h"

#include "cli/SyntaxParts.h"

namespace quillon {

std::unexpected<Refusal> unknownWord(const std::string& given, const std::string& noun,
                                     const std::vector<std::string>& words) {
    return refusal(ExitCode::usage, QString::fromStdString(notAmong(given, noun, words)));
}

} // namespace quillon
