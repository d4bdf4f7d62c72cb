#include "ui/review/CleanupReview.h"

#include "platform/FileNames.h"
#include "store/Sentences.h"
#include "ui/CountTexts.h"
#include "ui/TimeTexts.h"
#include "ui/review/CleanupResult.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillon {

using namespace std::chrono_literals;

namespace {

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

std::vector<bool> filesNamed(const QString& words, const std::vector<ListedFile>& files,
                             const LatestWork::MayContinue& mayContinue) {
    constexpr std::size_t atOnce = 4096;
    std::vector<bool> passing(files.size());
    for (std::size_t i = 0; i < files.size() && (i % atOnce != 0 || mayContinue()); ++i)
        passing[i] = pathText(lastComponent(files[i].path)).contains(words, Qt::CaseInsensitive);
    return passing;
}

bool isUndoneByNothing(const CleanupRecipe& recipe) {
    return !recipe.warning.isEmpty();
}

} // namespace

CleanupReview::CleanupReview(Surroundings around, QObject* parent)
    : QObject(parent)
    , around_(std::move(around))
    , looking_(around_.background)
    , filtering_(around_.background) {}

CleanupReview::~CleanupReview() = default;

void CleanupReview::open(const WatchedFolder& folder) {
    folder_ = folder;
    choice_ = remembered_.value(folder.id);
    const bool isFirst = choice_.recipes.empty();
    choice_.recipes = recipesFor(folder);
    if (isFirst)
        choice_.chooseDefaults();
    filter_.clear();
    look();
}

void CleanupReview::look() {
    drop();
    looking_.start([folder = folder_, &platform = around_.platform, make = around_.makeJudge](
                       const auto&) { return RuleEngine(platform, *make()).readyFiles(folder); },
                   [this](Expected<ReadyFiles> files) { listed(std::move(files)); });
    ready_.reset();
    passing_.reset();
    matches_.clear();
    files_.setContents({});
    isCounting_ = true;
    saysCounting_ = true;
    stage_ = Stage::listing;
    Q_EMIT changed();
    showRecipes();
}

void CleanupReview::listed(Expected<ReadyFiles> files) {
    if (!files) {
        stage_ = Stage::failed;
        Q_EMIT changed();
        return showRecipes();
    }
    ready_ = std::make_shared<const ReadyFiles>(*std::move(files));
    order_.clear();
    unticked_.assign(ready_->files.size(), false);
    count();
}

/// Looks in the background at which recipes would take which files.
void CleanupReview::count() {
    untilCount_.reset();
    if (!ready_)
        return;
    struct Counted {
        std::optional<std::vector<RecipeBits>> matches;
        std::vector<std::uint32_t> order;
    };
    looking_.start(
        [rules = everyRule(), files = ready_, isFirst = order_.empty(),
         &platform = around_.platform,
         make = around_.makeJudge](const LatestWork::MayContinue& mayContinue) {
            Counted counted;
            if (isFirst)
                counted.order = newestOpenedFirst(files->files);
            counted.matches = recipeMatches(rules, *files, platform, *make(), mayContinue);
            return counted;
        },
        [this](Counted counted) {
            if (!counted.matches)
                return;
            if (order_.empty())
                order_ = std::move(counted.order);
            matches_ = *std::move(counted.matches);
            untilWords_.reset();
            isCounting_ = false;
            saysCounting_ = false;
            stage_ = Stage::shown;
            layOut();
            if (!filter_.isEmpty() && !passing_)
                filter();
        });
    untilWords_ = around_.timers.after(shortWork, [this] {
        saysCounting_ = true;
        showRecipes();
    });
}

std::vector<Rule> CleanupReview::everyRule() const {
    std::vector<Rule> rules;
    for (const CleanupRecipe& recipe : choice_.recipes)
        rules.push_back(recipe.makeRule(folder_, choice_.daysOf(recipe)));
    return rules;
}

std::uint8_t CleanupReview::chosenBits() const {
    unsigned bits = 0;
    for (std::size_t r = 0; r < choice_.recipes.size(); ++r)
        if (choice_.isChosen(choice_.recipes[r]))
            bits |= 1U << r;
    return std::uint8_t(bits);
}

std::vector<CleanupGroup> CleanupReview::groups() const {
    return cleanupGroups({.files = ready_->files,
                          .order = order_,
                          .matches = matches_,
                          .unticked = unticked_,
                          .chosen = chosenBits()},
                         choice_.recipes.size());
}

void CleanupReview::layOut() {
    std::vector<bool> shown;
    for (const CleanupRecipe& recipe : choice_.recipes)
        shown.push_back(choice_.isChosen(recipe));
    files_.setContents({.files = ready_,
                        .groups = groups(),
                        .recipes = choice_.recipes,
                        .rules = everyRule(),
                        .shown = std::move(shown),
                        .unticked = unticked_,
                        .passing = passing_,
                        .thisYear = localDay(around_.platform.clock.now()).year()});
    showRecipes();
    Q_EMIT changed();
}

void CleanupReview::showRecipes() {
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
    if (stage_ == Stage::failed)
        for (RecipeRow& row : rows)
            row.countText.clear();
    recipes_.setRows(rows);
}

const CleanupRecipe* CleanupReview::recipeAt(int recipe) const {
    const bool isKnown = recipe >= 0 && std::size_t(recipe) < choice_.recipes.size();
    return isKnown && stage_ != Stage::failed ? &choice_.recipes[std::size_t(recipe)] : nullptr;
}

void CleanupReview::chooseRecipe(int recipe, bool chosen) {
    const CleanupRecipe* const changing = recipeAt(recipe);
    if (!changing)
        return;
    if (chosen)
        choice_.chosen.insert(changing->id);
    else
        choice_.chosen.remove(changing->id);
    remembered_.insert(folder_.id, choice_);
    if (stage_ == Stage::shown)
        layOut();
    else
        showRecipes();
}

void CleanupReview::setDays(int recipe, int days) {
    const CleanupRecipe* const changing = recipeAt(recipe);
    days = std::clamp(days, fewestDays, mostDays);
    if (!changing || !changing->days || choice_.daysOf(*changing) == days)
        return;
    choice_.days.insert(changing->id, days);
    remembered_.insert(folder_.id, choice_);
    isCounting_ = true;
    showRecipes();
    Q_EMIT changed();
    if (!ready_)
        return; // the count that comes takes these days
    looking_.drop();
    untilWords_.reset();
    untilCount_ = around_.timers.after(pauseInStepping, [this] { count(); });
}

void CleanupReview::tickRow(int row, bool ticked) {
    if (stage_ != Stage::shown)
        return;
    for (const std::uint32_t file : files_.filesAt(row))
        unticked_[file] = !ticked;
    ticksChanged();
}

void CleanupReview::tickAll() {
    if (stage_ != Stage::shown)
        return;
    const std::vector<std::uint32_t> shown = files_.shownFiles();
    const bool areAll = std::ranges::none_of(shown, [&](auto file) { return unticked_[file]; });
    for (const std::uint32_t file : shown)
        unticked_[file] = areAll;
    ticksChanged();
}

void CleanupReview::ticksChanged() {
    files_.setTicks(groups(), unticked_);
    Q_EMIT changed();
}

void CleanupReview::setFilterText(const QString& words) {
    if (filter_ == words)
        return;
    filter_ = words;
    if (stage_ == Stage::shown)
        filter();
}

/// What is shown stays until it is known which files there are of that name.
void CleanupReview::filter() {
    filtering_.drop();
    if (filter_.isEmpty()) {
        passing_.reset();
        return layOut();
    }
    filtering_.start(
        [words = filter_, files = ready_](const LatestWork::MayContinue& mayContinue) {
            return filesNamed(words, files->files, mayContinue);
        },
        [this](std::vector<bool> passing) {
            passing_ = std::make_shared<const std::vector<bool>>(std::move(passing));
            layOut();
        });
}

std::size_t CleanupReview::ticked() const {
    std::size_t number = 0;
    const auto& contents = files_.contents();
    for (std::size_t r = 0; r < contents.groups.size(); ++r)
        if (contents.shown[r])
            number += contents.groups[r].ticked;
    return number;
}

QString CleanupReview::emptyText() const {
    if (stage_ != Stage::shown || files_.rowCount() > 0)
        return {};
    if (hasNothing())
        return tr("%1 is already tidy. Nothing matches these recipes.").arg(folder_.name());
    if (passing_ && chosenBits() != 0)
        return tr("No files match.");
    return chosenBits() == 0
               ? tr("Tick a recipe to see its files.")
               : tr("%1 is already tidy. Nothing matches the recipes that are ticked.")
                     .arg(folder_.name());
}

bool CleanupReview::hasNothing() const {
    return stage_ == Stage::shown &&
           std::ranges::all_of(files_.contents().groups,
                               [](const CleanupGroup& group) { return group.files.empty(); });
}

QString CleanupReview::tickedText() const {
    if (stage_ != Stage::shown)
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

QString CleanupReview::noteText() const {
    if (stage_ != Stage::shown || ticked() == 0)
        return {};
    const auto& contents = files_.contents();
    for (std::size_t r = 0; r < contents.groups.size(); ++r)
        if (contents.shown[r] && contents.groups[r].ticked > 0 &&
            isUndoneByNothing(contents.recipes[r]))
            return tr("Unpacking archives can’t be undone.");
    return tr("You can undo all of it afterwards.");
}

bool CleanupReview::canTidy() const {
    return stage_ == Stage::shown && !isCounting_ && ticked() > 0;
}

ReadyFiles CleanupReview::tickedFiles() const {
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

void CleanupReview::close() {
    drop();
    stage_ = Stage::listing;
    files_.setContents({});
    matches_.clear();
    order_.clear();
    // Letting go of so many names takes a while.
    if (ready_)
        around_.background.start([files = std::exchange(ready_, {})]() mutable { files.reset(); },
                                 [] {});
}

void CleanupReview::drop() {
    untilCount_.reset();
    untilWords_.reset();
    looking_.drop();
    filtering_.drop();
}

} // namespace quillon
