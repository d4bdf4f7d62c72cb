#include "assistant/DraftMemory.h"

#include "model/JsonDate.h"
#include "model/JsonFields.h"
#include "model/JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::uint64_t largestFile = 8ULL << 20;
constexpr qsizetype longestAnswer = 64 << 10;
constexpr std::size_t mostDrafts = 8;
constexpr std::chrono::days lifetime{1};

} // namespace

struct DraftMemory::Draft {
    QString folder = {}; ///< absolute, links resolved
    QString sentence = {};
    QString answer = {};
    Timestamp date = {};

    [[nodiscard]] static Expected<Draft> fromJson(const JsonReader& json) {
        Draft draft;
        JsonFields fields(json);
        fields.required("folder"_L1, draft.folder);
        fields.required("sentence"_L1, draft.sentence);
        fields.required("answer"_L1, draft.answer);
        fields.required("date"_L1, draft.date);
        return fields.result(std::move(draft));
    }

    [[nodiscard]] QJsonObject json() const {
        return {{"folder"_L1, folder},
                {"sentence"_L1, sentence},
                {"answer"_L1, answer},
                {"date"_L1, jsonDate(date)}};
    }

    [[nodiscard]] bool isFor(const QString& otherFolder, const QString& otherSentence) const {
        return folder == otherFolder && sentence == otherSentence;
    }
};

QString DraftMemory::resolved(const QString& path) const {
    return QString::fromStdString(fileSystem_.resolved(path.toStdString()));
}

std::vector<DraftMemory::Draft> DraftMemory::read(Timestamp now) const {
    const auto bytes = storage_.readWhole(places_.drafts(), largestFile);
    const auto root = bytes ? parseJson(*bytes) : std::unexpected(bytes.error());
    if (!root)
        return {};
    auto drafts = JsonFields::readList<Draft>(JsonReader(*root), Draft::fromJson);
    if (!drafts)
        return {};
    std::erase_if(*drafts, [now](const Draft& draft) {
        return draft.date > now || draft.date < now - lifetime;
    });
    return *std::move(drafts);
}

std::optional<QString> DraftMemory::answer(const QString& folder, const QString& sentence,
                                           Timestamp now) const {
    const QString place = resolved(folder);
    for (const Draft& draft : read(now))
        if (draft.isFor(place, sentence))
            return draft.answer;
    return std::nullopt;
}

void DraftMemory::remember(const QString& folder, const QString& sentence, const QString& answer,
                           Timestamp now) {
    const QString place = resolved(folder);
    std::vector<Draft> drafts = read(now);
    std::erase_if(drafts, [&](const Draft& draft) { return draft.isFor(place, sentence); });
    if (answer.size() <= longestAnswer)
        drafts.insert(drafts.begin(), {place, sentence, answer, now});
    QJsonArray list;
    for (const Draft& draft : drafts)
        if (std::size_t(list.size()) < mostDrafts)
            list.append(draft.json());
    const QByteArray bytes = QJsonDocument(list).toJson(QJsonDocument::Compact);
    auto done = fileSystem_.makeFolders(places_.folder);
    if (done)
        done = storage_.writeDurably(places_.drafts(), bytes);
    if (!done)
        (void)storage_.remove(places_.drafts());
}

} // namespace quillon
