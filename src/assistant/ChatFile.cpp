#include "assistant/ChatFile.h"

#include "model/JsonFields.h"
#include "model/JsonText.h"
#include "model/JsonWriter.h"
#include "store/UnreadableFile.h"

#include <QJsonDocument>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::uint64_t largestFile = 64ULL << 20;

Expected<std::vector<ChatTurn>> decode(const QByteArray& bytes, Timestamp now) {
    const Expected<QJsonValue> root = parseJson(bytes);
    if (!root)
        return std::unexpected(root.error());
    auto turns = JsonFields::readList<ChatTurn>(
        JsonReader(*root, u"turns"_s),
        [now](const JsonReader& turn) { return chatTurnFromJson(turn, now); });
    if (turns && turns->size() > turnCap)
        turns->erase(turns->begin(), turns->end() - std::ptrdiff_t(turnCap));
    return turns;
}

} // namespace

Expected<ChatFile::Loaded> ChatFile::load(Timestamp now) {
    const Expected<QByteArray> bytes = storage_.readWhole(path_, largestFile);
    if (!bytes && bytes.error().kind == ErrorKind::notFound)
        return Loaded{};
    auto turns = bytes ? decode(*bytes, now) : std::unexpected(bytes.error());
    if (turns)
        return Loaded{std::move(*turns), std::nullopt};
    const Expected<QString> kept = keepUnreadable(storage_, path_, turns.error(), now);
    if (!kept)
        return std::unexpected(kept.error());
    return Loaded{{}, *kept + u", and the conversation with Dobbin starts anew"_s};
}

Expected<void> ChatFile::save(const std::vector<ChatTurn>& turns) {
    return storage_.writeDurably(path_,
                                 QJsonDocument(jsonList(turns)).toJson(QJsonDocument::Compact));
}

} // namespace quillon
