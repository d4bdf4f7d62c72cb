#include "store/StateFile.h"

#include "store/Sentences.h"

#include <QDateTime>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::uint64_t largestFile = 1ULL << 30;

QString dateForName(Timestamp now) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(now).time_since_epoch();
    return QDateTime::fromSecsSinceEpoch(seconds.count()).toString(u"yyyy-MM-dd-HHmmss");
}

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
    // A disk or a machine in trouble says nothing about the file.
    if (state.error().kind == ErrorKind::io)
        return failedTo(u"%1 can't be read"_s.arg(pathText(path_)), state.error());

    const std::string wanted = path_ + ".unreadable-" + dateForName(now).toStdString();
    const Expected<std::string> kept = storage_.keepAside(path_, wanted);
    if (!kept)
        return failure(kept.error().kind,
                       u"%1 can't be read (%2) and can't be kept aside: %3"_s.arg(
                           pathText(path_), state.error().message, kept.error().message));
    return Loaded{{},
                  u"%1 can't be read (%2). It is kept as %3, and Quillon starts empty"_s.arg(
                      pathText(path_), state.error().message, pathText(*kept))};
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
