#include "faults/Report.h"

#include <sstream>

namespace quillon::testing {

// Strings never hold a NUL, so it ends each of them.
std::string encodeReport(const Report& report) {
    std::string bytes;
    for (const Claim& claim : report)
        for (const std::string& text : {claim.thing, std::string(claim.succeeded ? "yes" : "no"),
                                        claim.place, claim.losses, claim.message})
            bytes.append(text.c_str(), text.size() + 1);
    return bytes;
}

Report decodeReport(const std::string& bytes) {
    Report report;
    std::istringstream stream(bytes);
    const auto next = [&stream] {
        std::string text;
        std::getline(stream, text, '\0');
        return text;
    };
    while (stream.peek() != std::istringstream::traits_type::eof()) {
        Claim claim;
        claim.thing = next();
        claim.succeeded = next() == "yes";
        claim.place = next();
        claim.losses = next();
        claim.message = next();
        report.push_back(claim);
    }
    return report;
}

} // namespace quillon::testing
