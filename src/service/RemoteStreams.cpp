#include "service/RemoteStreams.h"

namespace quillon {

RemoteOutput::Buffer::Buffer(CommandConnection& connection, FrameType type)
    : connection_(connection), type_(type) {
    setp(space_.data(), space_.data() + space_.size());
}

int RemoteOutput::Buffer::sync() {
    const bool isSent =
        pptr() == pbase() || connection_.send(type_, {pbase(), std::size_t(pptr() - pbase())});
    setp(space_.data(), space_.data() + space_.size());
    return isSent ? 0 : -1;
}

RemoteOutput::Buffer::int_type RemoteOutput::Buffer::overflow(int_type byte) {
    if (sync() != 0)
        return traits_type::eof();
    if (!traits_type::eq_int_type(byte, traits_type::eof()))
        sputc(traits_type::to_char_type(byte));
    return traits_type::not_eof(byte);
}

RemoteInput::Buffer::int_type RemoteInput::Buffer::underflow() {
    bytes_ = connection_.input();
    setg(bytes_.data(), bytes_.data(), bytes_.data() + bytes_.size());
    return bytes_.empty() ? traits_type::eof() : traits_type::to_int_type(bytes_.front());
}

} // namespace quillon
