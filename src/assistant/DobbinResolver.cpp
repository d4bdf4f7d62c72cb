#include "assistant/DobbinResolver.h"

#include "assistant/JudgePrompts.h"
#include "assistant/SmartName.h"

#include <QJsonObject>

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t mostVerdicts = 24;
constexpr std::size_t mostNames = 12;

QString nameIn(const QJsonObject& answer) {
    const auto part = [&](const char* key) {
        return answer.value(QLatin1StringView(key)).toString();
    };
    return assemble(part("date"), part("from"), part("what"), part("amount"));
}

} // namespace

/// What goes into one request.
struct DobbinResolver::Batch {
    std::optional<QString> question; ///< none: the files want names
    std::vector<FileKey> files;
    QStringList facts = {};

    [[nodiscard]] AIRequest request() const {
        return question ? verdictRequest(*question, facts) : nameRequest(facts);
    }

    /// Whether the answer about one file could be used.
    bool record(const FileKey& file, const std::optional<QJsonObject>& said,
                DobbinJudge& judge) const {
        return question ? recordVerdict({.question = *question, .file = file}, said, judge)
                        : recordName(file, said, judge);
    }

    static bool recordVerdict(const VerdictRequest& request, const std::optional<QJsonObject>& said,
                              DobbinJudge& judge) {
        const QJsonValue matches = said ? said->value("matches"_L1) : QJsonValue();
        if (matches.isBool())
            judge.recordVerdict(request, matches.toBool());
        else
            judge.recordVerdictFailure(request);
        return matches.isBool();
    }

    static bool recordName(const FileKey& file, const std::optional<QJsonObject>& said,
                           DobbinJudge& judge) {
        const QString name = said ? nameIn(*said) : QString();
        if (name.isEmpty())
            judge.recordNameFailure(file);
        else
            judge.recordName(file, name);
        return !name.isEmpty();
    }
};

struct DobbinResolver::Pass {
    std::vector<std::shared_ptr<Batch>> batches;
    std::function<void(QuestionsOutcome)> done;
    std::size_t unanswered = 0;
    QuestionsOutcome outcome = {};

    explicit Pass(DobbinJudge::Pending pending, std::function<void(QuestionsOutcome)> whenDone)
        : done(std::move(whenDone)) {
        for (VerdictRequest& verdict : pending.verdicts) {
            if (batches.empty() || batches.back()->question != verdict.question)
                batches.push_back(std::make_shared<Batch>(Batch{verdict.question, {}}));
            batches.back()->files.push_back(std::move(verdict.file));
        }
        if (!pending.names.empty())
            batches.push_back(
                std::make_shared<Batch>(Batch{std::nullopt, std::move(pending.names)}));
        unanswered = batches.size();
    }

    /// In the background. A file that several questions are about is described once.
    void describe(const FileText& files, bool readContents, const std::atomic<bool>& goesOn) {
        std::map<std::string, QString> known;
        for (const auto& batch : batches)
            for (const FileKey& file : batch->files) {
                if (!goesOn)
                    return;
                QString& facts = known[file.path];
                if (facts.isEmpty())
                    facts = files.describe(file.path, readContents);
                batch->facts.append(facts);
            }
    }
};

DobbinResolver::DobbinResolver(DobbinJudge& judge, const FileText& files, Background& background,
                               std::function<ModelAccess&()> model)
    : judge_(judge), files_(files), background_(background), model_(std::move(model)) {}

DobbinResolver::~DobbinResolver() {
    *isAlive_ = false;
}

bool DobbinResolver::hasPending() const {
    return judge_.hasPending();
}

void DobbinResolver::resolvePending(std::function<void(QuestionsOutcome)> done) {
    const auto pass =
        std::make_shared<Pass>(judge_.takePending(mostVerdicts, mostNames), std::move(done));
    if (pass->batches.empty())
        return pass->done({});
    background_.start([pass, &files = files_, readContents = model_().readContents(),
                       goesOn = isAlive_] { pass->describe(files, readContents, *goesOn); },
                      [this, pass, isAlive = isAlive_] {
                          if (!*isAlive)
                              return;
                          for (const auto& batch : pass->batches)
                              ask(pass, batch);
                      });
}

QCoro::Task<> DobbinResolver::ask(std::shared_ptr<Pass> pass, std::shared_ptr<const Batch> batch) {
    const auto isAlive = isAlive_;
    AIRequest request = batch->request();
    const Expected<QString> answer = co_await model_().send(std::move(request));
    if (!*isAlive)
        co_return;
    QuestionsOutcome& outcome = pass->outcome;
    if (record(*batch, answer, outcome.problems))
        outcome.settled = true;
    if (--pass->unanswered == 0)
        pass->done(std::move(outcome));
}

bool DobbinResolver::record(const Batch& batch, const Expected<QString>& answer,
                            QStringList& problems) {
    const QString list = batch.question ? u"verdicts"_s : u"names"_s;
    const auto said =
        answer ? mapByID(*answer, list, batch.files.size()) : std::unexpected(answer.error());
    if (!said && !problems.contains(said.error().message))
        problems.append(said.error().message);
    bool hasSettled = false;
    for (std::size_t i = 0; i < batch.files.size(); ++i)
        if (batch.record(batch.files[i], said ? (*said)[i] : std::nullopt, judge_))
            hasSettled = true;
    return hasSettled;
}

} // namespace quillon
