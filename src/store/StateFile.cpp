#include "store/StateFile.h"

#include "store/UnreadableFile.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::uint64_t largestFile = 1ULL << 30;

} // namespace

Expected<PersistedState> StateFile::read(Timestamp now) const {
    const Expected<QByteArray> bytes = storage_.readWhole(path_, largestFile);
    if (bytes)
        return decodeState(*bytes, now);
    if (bytes.error().kind == ErrorKind::notFound)
        return PersistedState{};
    return std::unexpected(bytes.error());
}

Expected<StateFile::Loaded> StateFile::load(Timestamp now) {
    Expected<PersistedState> state = read(now);
    if (state)
        return Loaded{std::move(*state), std::nullopt};
    const Expected<QString> kept = keepUnreadable(storage_, path_, state.error(), now);
    if (!kept)
        return std::unexpected(kept.error());
    return Loaded{{}, *kept + u", and Quillon starts empty"_s};
}

Expected<void> StateFile::save(const PersistedState& state) {
    const QByteArray bytes = encodeState(state);
    if (hasWritten_ && storage_.readWhole(path_, largestFile) == bytes)
        return {};
    auto written = storage_.writeDurably(path_, bytes);
    hasWritten_ = written.has_value();
    return written;
}

Expected<bool> StateFile::keepAs(const std::string& other) {
    const Expected<QByteArray> bytes = storage_.readWhole(path_, largestFile);
    if (!bytes)
        return bytes.error().kind == ErrorKind::notFound ? Expected<bool>(false)
                                                         : std::unexpected(bytes.error());
    if (auto written = storage_.writeDurably(other, *bytes); !written)
        return std::unexpected(written.error());
    return true;
}

} // namespace quillon
