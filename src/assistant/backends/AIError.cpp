#include "assistant/backends/AIError.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

QString AIError::description() const {
    switch (kind) {
    case Kind::onDeviceUnavailable:
        return detail;
    case Kind::onDevice:
        return u"Apple Intelligence couldn't answer: "_s + detail;
    case Kind::localModel:
        return u"The local model couldn't answer: "_s + detail;
    case Kind::tooLong:
        return u"That was too much to read in one go. Try a narrower question."_s;
    case Kind::declined:
        return u"The on-device model declined to answer that one."_s;
    case Kind::badResponse:
        break;
    }
    return u"Dobbin got muddled with that one. Try rephrasing it."_s;
}

Error asError(const AIError& error) {
    return {.kind = error.kind == AIError::Kind::onDeviceUnavailable ? ErrorKind::unsupported
                                                                     : ErrorKind::io,
            .message = error.description()};
}

} // namespace quillon
