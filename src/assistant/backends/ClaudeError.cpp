#include "assistant/backends/ClaudeError.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

QString ClaudeError::description() const {
    switch (kind) {
    case Kind::http:
        return detail.isEmpty() ? u"Claude returned an error (%1)."_s.arg(status) : detail;
    case Kind::network:
        return u"Couldn't reach Claude: "_s + detail;
    case Kind::noKey:
        return u"Add your Claude API key in Settings → Dobbin → Advanced."_s;
    case Kind::invalidKey:
        return u"Claude didn't accept that API key. Check it in Settings → Dobbin → Advanced."_s;
    case Kind::rateLimited:
        return u"Claude is rate-limiting this key. Try again in a minute."_s;
    case Kind::overloaded:
        return u"Claude is busy right now. Try again in a moment."_s;
    case Kind::refused:
        return u"Claude declined to answer that one."_s;
    case Kind::truncated:
        return u"Claude's answer was cut short. Try a simpler request."_s;
    case Kind::badResponse:
        break;
    }
    return u"Claude's reply didn't make sense to Quillon. Try rephrasing."_s;
}

Error asError(const ClaudeError& error) {
    using Kind = ClaudeError::Kind;
    const bool isAboutKey = error.kind == Kind::noKey || error.kind == Kind::invalidKey;
    return {.kind = isAboutKey ? ErrorKind::permissionDenied : ErrorKind::io,
            .message = error.description()};
}

} // namespace quillon
