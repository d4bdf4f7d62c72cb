#include "ui/review/CleanupModel.h"

#include "model/Uuid.h"
#include "ui/CountTexts.h"
#include "ui/FolderLook.h"
#include "ui/TimeTexts.h"

#include <QPointer>

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QLatin1StringView sheetName("CleanupSheet");
constexpr auto pauseInStepping = 250ms;
constexpr auto shortWork = 300ms; ///< isn't worth a word

constexpr int fewestDays = 1;
constexpr int mostDays = 3650;

/// What was opened last comes first.
std::vector<std::uint32_t> newestOpenedFirst(const std::vector<ListedFile>& files) {
    std::vector<std::uint32_t> order(files.size());
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::stable_sort(order, std::greater(),
                             [&](std::uint32_t file) { return files[file].status.accessed; });
    return order;
}

bool isUndoneByNothing(const CleanupRecipe& recipe) {
    return !recipe.warning.isEmpty();
}

} // namespace

CleanupModel::CleanupModel(Surroundings around, QObject* parent)
    : QObject(parent), around_(std::move(around)) {
    connect(this, &CleanupModel::changed, this, &CleanupModel::progressChanged);
    connect(&around_.sheets, &Sheets::currentChanged, this, [this] {
        const bool isBusy = state_ == State::tidying || state_ == State::undoing;
        if (state_ != State::closed && !isBusy && !isShown())
            close();
    });
}

CleanupModel::~CleanupModel() {
    giveUp();
}

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
    const FolderLook looks = lookOf(folder, std::size_t(&folder - around_.store.folders().data()));
    folder_ = folder;
    tint_ = looks.tint;
    symbol_ = looks.symbol;
    choice_ = remembered_.value(folder.id);
    const bool isFirst = choice_.recipes.empty();
    choice_.recipes = recipesFor(folder);
    if (isFirst)
        choice_.chooseDefaults();
    filter_.clear();
    result_ = {};
    resultRows_.setRows({});
    hasKept_ = false;
    keepText_ = tr("Turn these recipes into rules. The ones you left unticked are added switched "
                   "off.");
    Q_EMIT opened();
    look();
}

void CleanupModel::look() {
    giveUp();
    struct Listed {
        Expected<ReadyFiles> files;
    };
    const auto wanted = std::make_shared<std::atomic<bool>>(true);
    const auto seen = std::make_shared<Listed>();
    isWanted_ = wanted;
    around_.background.start(
        [wanted, seen, folder = folder_, &platform = around_.platform, make = around_.makeJudge] {
            if (*wanted)
                seen->files = RuleEngine(platform, *make()).readyFiles(folder);
        },
        [this, wanted, seen] {
            if (*wanted)
                listed(std::move(seen->files));
        });
    ready_.reset();
    matches_.clear();
    files_.setContents({});
    isCounting_ = true;
    saysCounting_ = true;
    setState(State::listing);
    showRecipes();
}

void CleanupModel::listed(Expected<ReadyFiles> files) {
    if (!files) {
        setState(State::failed);
        return showRecipes();
    }
    ready_ = std::make_shared<const ReadyFiles>(*std::move(files));
    order_.clear();
    unticked_.assign(ready_->files.size(), false);
    count();
}

/// Looks in the background at which recipes would take which files.
void CleanupModel::count() {
    untilCount_.reset();
    if (!ready_)
        return;
    giveUp();
    struct Seen {
        std::optional<std::vector<RecipeBits>> matches;
        std::vector<std::uint32_t> order;
    };
    const auto wanted = std::make_shared<std::atomic<bool>>(true);
    const auto seen = std::make_shared<Seen>();
    isWanted_ = wanted;
    around_.background.start(
        [wanted, seen, rules = everyRule(), files = ready_, isFirst = order_.empty(),
         &platform = around_.platform, make = around_.makeJudge] {
            if (isFirst)
                seen->order = newestOpenedFirst(files->files);
            seen->matches =
                recipeMatches(rules, *files, platform, *make(), [&] { return wanted->load(); });
        },
        [this, wanted, seen] {
            if (!*wanted || !seen->matches)
                return;
            if (order_.empty())
                order_ = std::move(seen->order);
            counted(*std::move(seen->matches));
        });
    untilWords_ = around_.timers.after(shortWork, [this] {
        saysCounting_ = true;
        showRecipes();
    });
}

void CleanupModel::counted(std::vector<RecipeBits> matches) {
    untilWords_.reset();
    matches_ = std::move(matches);
    isCounting_ = false;
    saysCounting_ = false;
    state_ = State::review;
    layOut();
}

std::vector<Rule> CleanupModel::everyRule() const {
    std::vector<Rule> rules;
    for (const CleanupRecipe& recipe : choice_.recipes)
        rules.push_back(recipe.makeRule(folder_, choice_.daysOf(recipe)));
    return rules;
}

std::uint8_t CleanupModel::chosenBits() const {
    unsigned bits = 0;
    for (std::size_t r = 0; r < choice_.recipes.size(); ++r)
        if (choice_.isChosen(choice_.recipes[r]))
            bits |= 1U << r;
    return std::uint8_t(bits);
}

std::vector<CleanupGroup> CleanupModel::groups() const {
    return cleanupGroups({.files = ready_->files,
                          .order = order_,
                          .matches = matches_,
                          .unticked = unticked_,
                          .chosen = chosenBits()},
                         choice_.recipes.size());
}

void CleanupModel::layOut() {
    if (matches_.empty() && !ready_)
        return;
    std::vector<bool> shown;
    for (const CleanupRecipe& recipe : choice_.recipes)
        shown.push_back(choice_.isChosen(recipe));
    files_.setContents({.files = ready_,
                        .groups = groups(),
                        .recipes = choice_.recipes,
                        .rules = everyRule(),
                        .shown = std::move(shown),
                        .unticked = unticked_,
                        .filter = filter_,
                        .thisYear = localDay(around_.platform.clock.now()).year()});
    showRecipes();
    Q_EMIT changed();
}

void CleanupModel::showRecipes() {
    const std::vector<CleanupGroup>& groups = files_.contents().groups;
    std::vector<RecipeRow> rows;
    for (std::size_t r = 0; r < choice_.recipes.size(); ++r) {
        const CleanupRecipe& recipe = choice_.recipes[r];
        const int days = choice_.daysOf(recipe);
        rows.push_back({.key = recipe.id,
                        .title = recipe.title,
                        .iconName = recipeIcon(recipe.id),
                        .sentence = recipe.description(days),
                        .warning = recipe.warning,
                        .countText = saysCounting_ || r >= groups.size()
                                         ? tr("Counting…")
                                         : fileCount(groups[r].files.size()),
                        .isChosen = choice_.isChosen(recipe),
                        .hasDays = recipe.days.has_value(),
                        .days = std::max(days, fewestDays)});
    }
    if (state_ == State::failed)
        for (RecipeRow& row : rows)
            row.countText.clear();
    recipes_.setRows(rows);
}

void CleanupModel::chooseRecipe(int recipe, bool chosen) {
    if (state_ != State::review && state_ != State::listing)
        return;
    if (recipe < 0 || std::size_t(recipe) >= choice_.recipes.size())
        return;
    const QString& id = choice_.recipes[std::size_t(recipe)].id;
    if (chosen)
        choice_.chosen.insert(id);
    else
        choice_.chosen.remove(id);
    remembered_.insert(folder_.id, choice_);
    if (state_ == State::review)
        layOut();
    else
        showRecipes();
}

void CleanupModel::setDays(int recipe, int days) {
    if (state_ != State::review && state_ != State::listing)
        return;
    if (recipe < 0 || std::size_t(recipe) >= choice_.recipes.size())
        return;
    const CleanupRecipe& changing = choice_.recipes[std::size_t(recipe)];
    days = std::clamp(days, fewestDays, mostDays);
    if (!changing.days || choice_.daysOf(changing) == days)
        return;
    choice_.days.insert(changing.id, days);
    remembered_.insert(folder_.id, choice_);
    isCounting_ = true;
    showRecipes();
    Q_EMIT changed();
    if (!ready_)
        return; // the count that comes takes these days
    giveUp();
    untilCount_ = around_.timers.after(pauseInStepping, [this] { count(); });
}

void CleanupModel::tickRow(int row, bool ticked) {
    if (state_ != State::review)
        return;
    for (const std::uint32_t file : files_.filesAt(row))
        unticked_[file] = !ticked;
    ticksChanged();
}

void CleanupModel::tickAll() {
    if (state_ != State::review)
        return;
    const std::vector<std::uint32_t> shown = files_.shownFiles();
    const bool areAll = std::ranges::none_of(shown, [&](auto file) { return unticked_[file]; });
    for (const std::uint32_t file : shown)
        unticked_[file] = areAll;
    ticksChanged();
}

void CleanupModel::ticksChanged() {
    files_.setTicks(groups(), unticked_);
    Q_EMIT changed();
}

void CleanupModel::reveal(int row) {
    if (const QString path = files_.pathAt(row); !path.isEmpty())
        around_.fileManager.reveal(path.toStdString());
}

void CleanupModel::setFilterText(const QString& words) {
    if (filter_ == words)
        return;
    filter_ = words;
    if (state_ == State::review)
        layOut();
}

QString CleanupModel::state() const {
    switch (state_) {
    case State::closed:
        return {};
    case State::listing:
        return u"looking"_s;
    case State::failed:
        return u"failed"_s;
    case State::review:
        return u"review"_s;
    case State::tidying:
        return u"tidying"_s;
    case State::result:
        return u"result"_s;
    case State::undoing:
        return u"undoing"_s;
    }
    return {};
}

std::size_t CleanupModel::ticked() const {
    std::size_t number = 0;
    const auto& contents = files_.contents();
    for (std::size_t r = 0; r < contents.groups.size(); ++r)
        if (contents.shown[r])
            number += contents.groups[r].ticked;
    return number;
}

QString CleanupModel::emptyText() const {
    if (state_ != State::review || files_.rowCount() > 0)
        return {};
    if (hasNothing())
        return tr("%1 is already tidy. Nothing matches these recipes.").arg(folder_.name());
    if (!filter_.isEmpty() && chosenBits() != 0)
        return tr("No files match.");
    return chosenBits() == 0
               ? tr("Tick a recipe to see its files.")
               : tr("%1 is already tidy. Nothing matches the recipes that are ticked.")
                     .arg(folder_.name());
}

bool CleanupModel::hasNothing() const {
    return state_ == State::review &&
           std::ranges::all_of(files_.contents().groups,
                               [](const CleanupGroup& group) { return group.files.empty(); });
}

QString CleanupModel::tickedText() const {
    if (state_ != State::review)
        return {};
    const auto& contents = files_.contents();
    std::uint64_t size = 0;
    for (std::size_t r = 0; r < contents.groups.size(); ++r)
        if (contents.shown[r])
            size += contents.groups[r].tickedSize;
    const std::size_t number = ticked();
    return number == 0 ? tr("No files ticked")
                       : tr("%1 ticked · %2", "a number of files, their size")
                             .arg(fileCount(number), sizeText(size));
}

QString CleanupModel::noteText() const {
    if (state_ != State::review || ticked() == 0)
        return {};
    const auto& contents = files_.contents();
    for (std::size_t r = 0; r < contents.groups.size(); ++r)
        if (contents.shown[r] && contents.groups[r].ticked > 0 &&
            isUndoneByNothing(contents.recipes[r]))
            return tr("Unpacking archives can’t be undone.");
    return tr("You can undo all of it afterwards.");
}

bool CleanupModel::canTidy() const {
    return state_ == State::review && !isCounting_ && ticked() > 0;
}

QString CleanupModel::progressText() const {
    if (isStopping())
        return tr("Stopping…");
    const QString amount =
        tr("%L1 of %2", "files done, and files in all").arg(done_).arg(fileCount(total_));
    return state_ == State::undoing ? tr("Putting back… %1", "such as 3 of 36 files").arg(amount)
                                    : tr("Tidying… %1", "such as 23 of 37 files").arg(amount);
}

/// In listing order, as a run takes them.
ReadyFiles CleanupModel::tickedFiles() const {
    std::vector<bool> taken(ready_->files.size(), false);
    const auto& contents = files_.contents();
    for (std::size_t r = 0; r < contents.groups.size(); ++r)
        if (contents.shown[r])
            for (const std::uint32_t file : contents.groups[r].files)
                taken[file] = !unticked_[file];
    ReadyFiles files;
    files.folder = ready_->folder;
    for (std::size_t i = 0; i < taken.size(); ++i)
        if (taken[i])
            files.files.push_back(ready_->files[i]);
    return files;
}

/// Tells the newest number only: there is one report a file.
Progress CleanupModel::reporter() {
    struct Report {
        std::atomic<std::size_t> done = 0;
        std::atomic<bool> isOnItsWay = false;
    };
    return [self = QPointer(this), report = std::make_shared<Report>(),
            &background = around_.background](std::size_t done, std::size_t total) {
        report->done = done;
        if (report->isOnItsWay.exchange(true))
            return;
        background.post([self, report, total] {
            report->isOnItsWay = false;
            if (self)
                self->progressed(report->done, total);
        });
    };
}

void CleanupModel::tidy() {
    if (!canTidy())
        return;
    const std::vector<Rule> rules = choice_.rules(folder_);
    ReadyFiles files = tickedFiles();
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
    result_ = cleanupResult(report.run, choice_, rules, folder_.name(), ticked);
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
    const auto restored = std::size_t(std::ranges::count_if(
        report.outcomes, [](const UndoOutcome& outcome) { return outcome.restored.has_value(); }));
    around_.toasts.show(report.unsaved ? report.unsaved->message
                                       : putBackText(restored, report.outcomes.size() - restored));
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
    std::vector<Rule> rules = choice_.keptRules(*folder);
    hasKept_ = true;
    keepText_ = rules.empty() ? tr("%1 has a rule for each recipe already.").arg(folder->name())
                              : tr("%1 added to %2.", "a number of rules, a folder")
                                    .arg(ruleCount(rules.size()), folder->name());
    Q_EMIT changed();
    if (!rules.empty())
        around_.store.addRules(std::move(rules), folder_.id, RuleSource::keepItTidy);
}

void CleanupModel::close() {
    giveUp();
    state_ = State::closed;
    files_.setContents({});
    matches_.clear();
    order_.clear();
    // Letting go of so many names takes a while.
    if (ready_)
        around_.background.start([files = std::exchange(ready_, {})]() mutable { files.reset(); },
                                 [] {});
    Q_EMIT changed();
}

void CleanupModel::giveUp() {
    untilCount_.reset();
    untilWords_.reset();
    if (isWanted_)
        *isWanted_ = false;
    isWanted_.reset();
}

void CleanupModel::setState(State state) {
    state_ = state;
    Q_EMIT changed();
}

} // namespace quillon
