#include "ui/review/CleanupModel.h"

#include "model/Uuid.h"
#include "ui/CountTexts.h"
#include "ui/ProgressRelay.h"
#include "ui/UndoTexts.h"

#include <QPointer>

#include <atomic>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView sheetName("CleanupSheet");

} // namespace

CleanupModel::CleanupModel(Surroundings around, QObject* parent)
    : QObject(parent)
    , around_(std::move(around))
    , review_({.platform = around_.platform,
               .background = around_.background,
               .timers = around_.timers,
               .makeJudge = around_.makeJudge}) {
    connect(this, &CleanupModel::changed, this, &CleanupModel::progressChanged);
    connect(&review_, &CleanupReview::changed, this, &CleanupModel::changed);
    connect(&around_.sheets, &Sheets::currentChanged, this, [this] {
        const bool isBusy = state_ == State::tidying || state_ == State::undoing;
        if (state_ != State::closed && !isBusy && !isShown())
            close();
    });
}

CleanupModel::~CleanupModel() = default;

bool CleanupModel::isShown() const {
    return around_.sheets.current() == sheetName;
}

void CleanupModel::open(const QString& folderId) {
    const auto id = uuidFromText(folderId);
    const WatchedFolder* const folder = id ? around_.store.folder(*id) : nullptr;
    if (!folder)
        return;
    around_.sheets.open(sheetName);
    if (isShown() && state_ != State::tidying && state_ != State::undoing)
        show(*folder);
}

void CleanupModel::show(const WatchedFolder& folder) {
    look_ = lookOf(folder, around_.store.folders());
    folder_ = folder;
    result_ = {};
    resultRows_.setRows({});
    hasKept_ = false;
    hasAdded_ = false;
    keepText_ = tr("Turn these recipes into rules. The ones you left unticked are added switched "
                   "off.");
    Q_EMIT opened();
    state_ = State::reviewing;
    review_.open(folder);
}

void CleanupModel::look() {
    if (isReviewing())
        review_.look();
}

void CleanupModel::chooseRecipe(int recipe, bool chosen) {
    if (isReviewing())
        review_.chooseRecipe(recipe, chosen);
}

void CleanupModel::setDays(int recipe, int days) {
    if (isReviewing())
        review_.setDays(recipe, days);
}

void CleanupModel::tickRow(int row, bool ticked) {
    if (isReviewing())
        review_.tickRow(row, ticked);
}

void CleanupModel::tickAll() {
    if (isReviewing())
        review_.tickAll();
}

void CleanupModel::setFilterText(const QString& words) {
    if (isReviewing())
        review_.setFilterText(words);
}

void CleanupModel::reveal(int row) {
    if (const QString path = review_.files().pathAt(row); !path.isEmpty())
        around_.fileManager.reveal(path.toStdString());
}

QString CleanupModel::state() const {
    switch (state_) {
    case State::closed:
        return {};
    case State::reviewing:
        break;
    case State::tidying:
        return u"tidying"_s;
    case State::result:
        return u"result"_s;
    case State::undoing:
        return u"undoing"_s;
    }
    switch (review_.stage()) {
    case CleanupReview::Stage::listing:
        return u"looking"_s;
    case CleanupReview::Stage::failed:
        return u"failed"_s;
    case CleanupReview::Stage::shown:
        break;
    }
    return u"review"_s;
}

QString CleanupModel::emptyText() const {
    return isReviewing() ? review_.emptyText() : QString();
}

QString CleanupModel::tickedText() const {
    return isReviewing() ? review_.tickedText() : QString();
}

QString CleanupModel::noteText() const {
    return isReviewing() ? review_.noteText() : QString();
}

QString CleanupModel::progressText() const {
    if (isStopping())
        return tr("Stopping…");
    const QString amount =
        tr("%L1 of %2", "files done, and files in all").arg(done_).arg(fileCount(total_));
    return state_ == State::undoing ? tr("Putting back… %1", "such as 3 of 36 files").arg(amount)
                                    : tr("Tidying… %1", "such as 23 of 37 files").arg(amount);
}

Progress CleanupModel::reporter() {
    return relayed(around_.background,
                   [self = QPointer(this)](std::size_t done, std::size_t total) {
                       if (self)
                           self->progressed(done, total);
                   });
}

void CleanupModel::tidy() {
    if (!canTidy())
        return;
    const std::vector<Rule> rules = review_.choice().rules(folder_);
    ReadyFiles files = review_.tickedFiles();
    batchID_ = QUuid::createUuid();
    done_ = 0;
    total_ = files.files.size();
    mayContinue_ = std::make_shared<std::atomic<bool>>(true);
    setState(State::tidying);
    around_.store.runCleanup(
        {.folder = folder_,
         .rules = rules,
         .files = std::move(files),
         .batchID = batchID_,
         .settings = {.mayContinue = [may = mayContinue_] { return may->load(); }},
         .progress = reporter()},
        [self = QPointer(this), rules, number = total_](const AppStore::CleanupReport& report) {
            if (self)
                self->tidied(report, rules, number);
        });
}

void CleanupModel::progressed(std::size_t done, std::size_t total) {
    if (state_ != State::tidying && state_ != State::undoing)
        return;
    done_ = done;
    total_ = total;
    Q_EMIT progressChanged();
}

void CleanupModel::stop() {
    if (!mayContinue_)
        return;
    *mayContinue_ = false;
    Q_EMIT changed();
}

void CleanupModel::tidied(const AppStore::CleanupReport& report, const std::vector<Rule>& rules,
                          std::size_t ticked) {
    mayContinue_.reset();
    result_ = cleanupResult(report.run, review_.choice(), rules, folder_.name(), ticked);
    if (report.unsaved)
        result_.sentence = report.unsaved->message;
    resultRows_.setRows(result_.rows);
    setState(State::result);
    if (isShown())
        return;
    const QString told = tr("%1: %2", "what became of a folder, and of its files")
                             .arg(result_.title, result_.sentence);
    if (result_.canUndo)
        around_.toasts.show(told, tr("Undo"), [self = QPointer(this), id = batchID_] {
            if (self)
                self->around_.store.undoCleanup(id, [self](const AppStore::UndoReport& undoing) {
                    if (self)
                        self->undone(undoing);
                });
        });
    else
        around_.toasts.show(told);
    close();
}

void CleanupModel::undo() {
    if (!canUndo())
        return;
    done_ = 0;
    total_ = result_.filed;
    mayContinue_ = std::make_shared<std::atomic<bool>>(true);
    setState(State::undoing);
    around_.store.undoCleanup(
        batchID_,
        [self = QPointer(this)](const AppStore::UndoReport& report) {
            if (self)
                self->undone(report);
        },
        reporter(), [may = mayContinue_] { return may->load(); });
}

void CleanupModel::undone(const AppStore::UndoReport& report) {
    mayContinue_.reset();
    if (const QString text = undoText(report); !text.isEmpty())
        around_.toasts.show(text);
    if (state_ != State::undoing)
        return;
    if (isShown())
        around_.sheets.close();
    close();
}

void CleanupModel::keep() {
    const WatchedFolder* const folder = around_.store.folder(folder_.id);
    if (!canKeep() || !folder)
        return;
    std::vector<Rule> rules = review_.choice().keptRules(*folder);
    hasKept_ = true;
    hasAdded_ = !rules.empty();
    keepText_ = rules.empty() ? tr("%1 has a rule for each recipe already.").arg(folder->name())
                              : tr("%1 added to %2.", "a number of rules, a folder")
                                    .arg(ruleCount(rules.size()), folder->name());
    Q_EMIT changed();
    if (!rules.empty())
        around_.store.addRules(std::move(rules), folder_.id, RuleSource::keepItTidy);
}

void CleanupModel::close() {
    review_.close();
    setState(State::closed);
}

void CleanupModel::setState(State state) {
    state_ = state;
    Q_EMIT changed();
}

} // namespace quillon
