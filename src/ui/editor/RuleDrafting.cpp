#include "ui/editor/RuleDrafting.h"

#include "assistant/ValueWarnings.h"
#include "engine/RuleChecks.h"

#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

RuleDrafting::RuleDrafting(Surroundings around, QObject* parent)
    : QObject(parent), around_(std::move(around)) {}

RuleDrafting::~RuleDrafting() {
    *isWanted_ = false;
    *isAlive_ = false;
    asking_.request_stop();
}

void RuleDrafting::open(RulePlace place, const QString& sentence) {
    newLife();
    place_ = std::move(place);
    isBusy_ = false;
    note_.clear();
    warnings_.clear();
    error_.clear();
    Q_EMIT changed();
    setSentence(sentence);
    refresh();
}

void RuleDrafting::setSentence(const QString& sentence) {
    if (sentence_ == sentence)
        return;
    sentence_ = sentence;
    Q_EMIT sentenceChanged();
}

void RuleDrafting::draft() {
    const QString sentence = sentence_.trimmed();
    if (isBusy_ || sentence.isEmpty() || !unavailable_.isEmpty())
        return;
    isBusy_ = true;
    error_.clear();
    note_.clear();
    warnings_.clear();
    Q_EMIT changed();
    Q_EMIT started();
    ask(sentence);
}

void RuleDrafting::stop() {
    newLife();
    isBusy_ = false;
    Q_EMIT changed();
}

void RuleDrafting::refresh() {
    if (around_.whyUnavailable)
        lookWhetherAvailable();
}

QCoro::Task<> RuleDrafting::lookWhetherAvailable() {
    const auto isAlive = isAlive_;
    const std::uint64_t look = ++looks_;
    QString why = co_await around_.whyUnavailable();
    if (!*isAlive || look != looks_ || unavailable_ == why)
        co_return;
    unavailable_ = std::move(why);
    Q_EMIT changed();
}

QCoro::Task<> RuleDrafting::ask(QString sentence) {
    const auto isWanted = newLife();
    AIRequest request = ruleRequest(sentence, place_);
    request.stop = asking_.get_token();
    const Expected<QString> answer = co_await around_.assistant().send(std::move(request));
    if (!*isWanted)
        co_return;
    if (answer)
        understand(*answer);
    else
        fail(answer.error().message);
}

/// Where folders lead is looked up on the disk, which may be far away.
void RuleDrafting::understand(const QString& answer) {
    struct Understood {
        Expected<RuleDraft> draft;
    };
    const auto understood = std::make_shared<Understood>();
    around_.background.start(
        [understood, answer, place = place_, &platform = around_.platform] {
            understood->draft = draftFromJson(answer, place, platform);
        },
        [this, understood, isWanted = isWanted_] {
            if (*isWanted)
                take(understood->draft);
        });
}

void RuleDrafting::take(const Expected<RuleDraft>& draft) {
    if (!draft)
        return fail(draft.error().message);
    isBusy_ = false;
    const QString advice = tr("Check the rule before you save it.");
    const QString said = draft->note.trimmed();
    note_ = said.isEmpty() ? advice : said + u' ' + advice;
    const QStringList shownBeside = validationWarnings(draft->rule) + valueWarnings(draft->rule);
    warnings_.clear();
    for (const QString& warning : draft->warnings)
        if (!shownBeside.contains(warning))
            warnings_.append(warning);
    Q_EMIT changed();
    Q_EMIT drafted(draft->rule);
}

void RuleDrafting::fail(const QString& sentence) {
    isBusy_ = false;
    error_ = sentence;
    Q_EMIT changed();
}

std::shared_ptr<bool> RuleDrafting::newLife() {
    *isWanted_ = false;
    isWanted_ = std::make_shared<bool>(true);
    std::exchange(asking_, std::stop_source()).request_stop();
    return isWanted_;
}

} // namespace quillon
