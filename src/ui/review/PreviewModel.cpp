#include "ui/review/PreviewModel.h"

#include "model/Uuid.h"
#include "ui/ActionIcon.h"
#include "ui/CountTexts.h"
#include "ui/FileKindWord.h"
#include "ui/ShownName.h"
#include "ui/folders/FolderPage.h"

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QLatin1StringView sheetName("PreviewSheet");
constexpr auto shortWork = 300ms; ///< isn't worth a word

enum Role {
    fileNameRole = Qt::UserRole,
    kindRole,
    ruleNumberRole,
    ruleNameRole,
    firstActionRole,
    firstIconRole,
    moreActionsRole,
    moreIconRole,
    spokenRole,
};

std::vector<std::uint32_t> filesOf(FileFate fate, const RunForecast& forecast) {
    std::vector<std::uint32_t> rows;
    for (std::size_t i = 0; i < forecast.files.size(); ++i)
        if (forecast.files[i].fate == fate)
            rows.push_back(std::uint32_t(i));
    return rows;
}

/// Those whose name, rule or actions hold the words.
std::vector<std::uint32_t> filesHolding(const QString& words, FileFate fate,
                                        const RunForecast& forecast, const std::vector<Rule>& rules,
                                        const LatestWork::MayContinue& mayContinue) {
    constexpr std::size_t atOnce = 4096;
    const auto holds = [&](const QString& text) {
        return text.contains(words, Qt::CaseInsensitive);
    };
    std::vector<bool> rulesHold;
    for (const Rule& rule : rules)
        rulesHold.push_back(holds(rule.name));
    std::vector<std::uint32_t> rows;
    for (std::size_t i = 0; i < forecast.files.size() && (i % atOnce != 0 || mayContinue()); ++i) {
        const ForecastFile& file = forecast.files[i];
        if (file.fate == fate && (holds(file.name) || std::ranges::any_of(file.actions, holds) ||
                                  (file.rule >= 0 && rulesHold[std::size_t(file.rule)])))
            rows.push_back(std::uint32_t(i));
    }
    return rows;
}

} // namespace

PreviewModel::PreviewModel(Surroundings around, QObject* parent)
    : QAbstractListModel(parent)
    , around_(std::move(around))
    , looking_(around_.background)
    , filtering_(around_.background) {
    connect(&around_.sheets, &Sheets::currentChanged, this, [this] {
        if (state_ != State::closed && around_.sheets.current() != sheetName)
            close();
    });
    connect(&around_.store, &AppStore::folderAccessChanged, this, &PreviewModel::changed);
}

PreviewModel::~PreviewModel() = default;

void PreviewModel::open(const QString& folderId) {
    const auto id = uuidFromText(folderId);
    const WatchedFolder* const folder = id ? around_.store.folder(*id) : nullptr;
    if (!folder)
        return;
    around_.sheets.open(sheetName);
    if (around_.sheets.current() != sheetName)
        return;
    look_ = lookOf(*folder, around_.store.folders());
    folder_ = *folder;
    fate_ = FileFate::changed;
    filter_.clear();
    expected_ = 0;
    Q_EMIT opened();
    look();
}

void PreviewModel::look() {
    giveUp();
    forget();
    if (const WatchedFolder* const folder = around_.store.folder(folder_.id))
        folder_ = *folder;
    const QSet<QString> skip = folder_.onlyNewFiles
                                   ? around_.store.processedFiles().value(uuidText(folder_.id))
                                   : QSet<QString>();
    looking_.start(
        [skip, folder = folder_, &platform = around_.platform,
         make = around_.makeJudge](const LatestWork::MayContinue& mayContinue) {
            return runForecast(folder, skip, platform, *make(), mayContinue);
        },
        [this](Expected<RunForecast> forecast) {
            untilLooking_.reset();
            if (forecast)
                show(*std::move(forecast));
            else
                setState(State::failed);
        });
    setState(State::beginning);
    untilLooking_ = around_.timers.after(shortWork, [this] { setState(State::looking); });
}

void PreviewModel::show(RunForecast forecast) {
    forecast_ = std::make_shared<const RunForecast>(std::move(forecast));
    expected_ = forecast_->files.size();
    state_ = State::shown;
    layOut();
}

void PreviewModel::close() {
    giveUp();
    state_ = State::closed;
    forget();
    Q_EMIT changed();
}

/// What was foretold counts its rules as the folder had them then.
void PreviewModel::forget() {
    if (forecast_->files.empty())
        return;
    setRows({});
    // Letting go of so many names takes a while.
    around_.background.start(
        [old = std::exchange(forecast_, std::make_shared<const RunForecast>())]() mutable {
            old.reset();
        },
        [] {});
}

void PreviewModel::giveUp() {
    untilLooking_.reset();
    looking_.drop();
    filtering_.drop();
}

void PreviewModel::setState(State state) {
    state_ = state;
    Q_EMIT changed();
}

QString PreviewModel::folderID() const {
    return uuidText(folder_.id);
}

QString PreviewModel::title() const {
    return tr("What would happen in %1").arg(folder_.name());
}

QString PreviewModel::lookingText() const {
    return expected_ > 0 ? tr("Checking %1…", "a number of files").arg(fileCount(expected_))
                         : tr("Checking %1…", "a folder").arg(folder_.name());
}

QString PreviewModel::emptyText() const {
    if (state_ != State::shown || !rows_.empty())
        return {};
    if (!filter_.isEmpty())
        return tr("No files match.");
    const auto waiting = forecast_->counts[std::size_t(FileFate::waiting)];
    switch (fate_) {
    case FileFate::leftAlone:
        return tr("No file would be left alone.");
    case FileFate::waiting:
        return tr("No file is waiting for Dobbin.");
    case FileFate::changed:
        break;
    }
    if (forecast_->files.empty())
        return tr("Nothing would change. There are no files to check in %1.").arg(folder_.name());
    if (waiting > 0)
        return tr("Nothing would change yet. Dobbin has to look at %1 first.", "a number of files")
            .arg(fileCount(waiting));
    if (forecast_->files.size() == 1)
        return tr("Nothing would change. No rule matches this file.");
    return tr("Nothing would change. No rule matches these %1.", "a number of files")
        .arg(fileCount(forecast_->files.size()));
}

QStringList PreviewModel::fates() const {
    const auto& counts = forecast_->counts;
    if (state_ != State::shown)
        return {tr("Would change"), tr("Left alone")};
    QStringList all{tr("Would change %L1").arg(counts[0]), tr("Left alone %L1").arg(counts[1])};
    if (counts[2] > 0)
        all.append(tr("Waiting for Dobbin %L1").arg(counts[2]));
    return all;
}

void PreviewModel::setFate(int fate) {
    fate_ = FileFate(std::clamp(fate, 0, int(fileFates) - 1));
    layOut();
}

void PreviewModel::setFilterText(const QString& words) {
    if (filter_ == words)
        return;
    filter_ = words;
    layOut();
}

bool PreviewModel::canRun() const {
    const auto& counts = forecast_->counts;
    return state_ == State::shown && counts[0] + counts[2] > 0 &&
           FolderPage::whyNotRun(folder_, around_.store).isEmpty();
}

QString PreviewModel::whyNotRun() const {
    const QString why = FolderPage::whyNotRun(folder_, around_.store);
    return why.isEmpty() ? emptyText() : why;
}

/// What is shown stays until it is known which files the words fit.
void PreviewModel::layOut() {
    filtering_.drop();
    if (filter_.isEmpty()) {
        setRows(filesOf(fate_, *forecast_));
        Q_EMIT changed();
        return;
    }
    filtering_.start(
        [forecast = forecast_, fate = fate_, words = filter_,
         rules = folder_.rules](const LatestWork::MayContinue& mayContinue) {
            return filesHolding(words, fate, *forecast, rules, mayContinue);
        },
        [this](std::vector<std::uint32_t> rows) {
            setRows(std::move(rows));
            Q_EMIT changed();
        });
}

void PreviewModel::setRows(std::vector<std::uint32_t> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

const ForecastFile& PreviewModel::file(int row) const {
    return forecast_->files[rows_[std::size_t(row)]];
}

int PreviewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

QVariant PreviewModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const ForecastFile& told = file(index.row());
    const Rule* const rule = told.rule >= 0 ? &folder_.rules[std::size_t(told.rule)] : nullptr;
    const auto icon = [&](std::size_t action) {
        return rule && action < rule->actions.size() ? actionIcon(rule->actions[action].type)
                                                     : QString();
    };
    switch (role) {
    case fileNameRole:
        return shownName(told.name);
    case kindRole:
        return fileKindWord(told.name);
    case ruleNumberRole:
        return rule ? QString::number(told.rule + 1) : QString();
    case ruleNameRole:
        return rule ? rule->name : QString();
    case firstActionRole:
        return told.actions.value(0);
    case firstIconRole:
        return icon(0);
    case moreActionsRole:
        return told.actions.mid(1).join(u", "_s);
    case moreIconRole:
        return icon(1);
    case spokenRole:
        return rule ? tr("Rule %1, %2: %3", "a number, a name, what happens")
                          .arg(QString::number(told.rule + 1), rule->name,
                               told.actions.join(u", "_s))
               : told.fate == FileFate::waiting ? tr("Waiting for Dobbin")
                                                : tr("Left alone");
    default:
        return {};
    }
}

QHash<int, QByteArray> PreviewModel::roleNames() const {
    return {{fileNameRole, "fileName"},
            {kindRole, "kind"},
            {ruleNumberRole, "ruleNumber"},
            {ruleNameRole, "ruleName"},
            {firstActionRole, "firstAction"},
            {firstIconRole, "firstIcon"},
            {moreActionsRole, "moreActions"},
            {moreIconRole, "moreIcon"},
            {spokenRole, "spoken"}};
}

} // namespace quillon
