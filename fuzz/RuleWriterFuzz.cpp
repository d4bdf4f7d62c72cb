#include "Hold.h"
#include "assistant/PlainLine.h"
#include "assistant/RuleWriter.h"
#include "assistant/RuleWriterActions.h"
#include "support/FakePlatform.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>

using namespace quillon;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* own[] = {"/home/user", "/mnt/photos", "/srv/inbox"};

/// Takes an answer apart from made-up bytes: words from our own lists where a word counts, lines of
/// any text elsewhere.
class MadeUpAnswer {
public:
    explicit MadeUpAnswer(const QByteArray& bytes) : lines_(bytes.split('\n')) {}

    QString text() { return QString::fromUtf8(lines_.value(next_++)); }

    template <typename E>
    QString word() {
        const QString line = text();
        const auto cases = allCases<E>();
        return line.isEmpty() || line.front() == u'?'
                   ? line
                   : rawValue(cases[line.front().unicode() % cases.size()]);
    }

    bool hasMore() const { return next_ < lines_.size(); }

private:
    QByteArrayList lines_;
    qsizetype next_ = 0;
};

QByteArray answerFrom(const QByteArray& bytes) {
    MadeUpAnswer made(bytes);
    QJsonObject answer{{u"name"_s, made.text()},
                       {u"note"_s, made.text()},
                       {u"matchMode"_s, made.word<MatchMode>()}};
    QJsonArray conditions;
    QJsonArray actions;
    while (made.hasMore()) {
        actions.append(QJsonObject{{u"type"_s, made.word<ActionType>()},
                                   {u"destination"_s, made.text()},
                                   {u"renamePattern"_s, made.text()},
                                   {u"tag"_s, made.word<TagColor>()},
                                   {u"sortBy"_s, made.word<SortStrategy>()}});
        conditions.append(QJsonObject{{u"attribute"_s, made.word<ConditionAttribute>()},
                                      {u"operator"_s, made.word<MatchOperator>()},
                                      {u"value"_s, made.text()},
                                      {u"sizeUnit"_s, made.word<SizeUnit>()}});
    }
    answer.insert(u"conditions"_s, conditions);
    answer.insert(u"actions"_s, actions);
    return QJsonDocument(answer).toJson();
}

bool isOwn(const QString& destination) {
    std::string path = destination.toStdString();
    if (path == "~" || path.starts_with("~/"))
        path.replace(0, 1, own[0]);
    path = std::filesystem::path(path).lexically_normal().string();
    return std::ranges::any_of(
        own, [&](const std::string& folder) { return (path + '/').starts_with(folder + '/'); });
}

bool isAmong(const auto& value, const auto& list) {
    return std::ranges::find(list, value) != std::ranges::end(list);
}

void check(const RuleDraft& draft) {
    hold(!draft.rule.name.isEmpty() && plainLine(draft.rule.name) == draft.rule.name);
    hold(!draft.rule.actions.empty());
    hold(draft.needsConsent || !draft.rule.conditions.empty());
    for (const Condition& condition : draft.rule.conditions)
        hold(isAmong(condition.op, allowedOperators(condition.attribute)));
    for (const RuleAction& action : draft.rule.actions) {
        hold(isAmong(action.type, writableActions));
        hold(std::ranges::count(draft.rule.actions, action.type, &RuleAction::type) == 1);
        hold(draft.needsConsent || !action.destination || isOwn(*action.destination));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    static const testing::FakePlatform machine;
    RulePlace place;
    place.folder.path = QString::fromLatin1(own[2]);
    place.otherFolders.resize(1);
    place.otherFolders[0].path = QString::fromLatin1(own[1]);
    for (const QByteArray& answer : {bytes, answerFrom(bytes)})
        if (const auto draft = draftFromJson(QString::fromUtf8(answer), place, machine.platform))
            check(*draft);
    return 0;
}
