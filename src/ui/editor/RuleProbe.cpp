#include "ui/editor/RuleProbe.h"

#include "store/Sentences.h"
#include "ui/ShownName.h"

#include <utility>

namespace quillon {

using namespace std::chrono_literals;

namespace {

constexpr auto pauseInTyping = 250ms;
constexpr auto shortWork = 300ms; ///< isn't worth a word
constexpr auto stillness = 1s;

} // namespace

RuleProbe::RuleProbe(Surroundings around, QObject* parent)
    : QObject(parent)
    , around_(std::move(around))
    , listing_(around_.background)
    , looking_(around_.background) {}

RuleProbe::~RuleProbe() = default;

void RuleProbe::open(const WatchedFolder& folder) {
    close();
    folderName_ = folder.name();
    setCounting(true);
    list(folder);
}

void RuleProbe::setRule(const Rule& rule) {
    if (rule_ == rule)
        return;
    const bool isFirst = !rule_;
    rule_ = rule;
    giveUp();
    untilSpoken_.reset();
    if (isFirst)
        look();
    else
        untilLook_ = around_.timers.after(pauseInTyping, [this] { look(); });
}

void RuleProbe::close() {
    giveUp();
    listing_.drop();
    untilSpoken_.reset();
    rule_.reset();
    // Letting go of so many names takes a while, too.
    if (files_)
        around_.background.start([files = std::exchange(files_, {})] {}, [] {});
    error_.clear();
    found_.reset();
    spoken_.clear();
    setCounting(false);
}

QString RuleProbe::text() const {
    if (!error_.isEmpty())
        return error_;
    if (isCounting_ || !found_)
        return tr("Counting…");
    if (found_->tested == 0)
        return tr("No files in %1 now").arg(folderName_);
    const QString files =
        found_->tested == 1
            ? tr("Catches %L1 of 1 file now").arg(found_->caught)
            : tr("Catches %L1 of %L2 files now").arg(found_->caught).arg(found_->tested);
    return found_->waiting == 0 ? files
                                : tr("%1, %L2 waiting for Dobbin", "what a rule catches, and files")
                                      .arg(files)
                                      .arg(found_->waiting);
}

QStringList RuleProbe::names() const {
    if (!found_)
        return {};
    QStringList names;
    for (const QString& name : found_->names)
        names.append(shownName(name));
    const auto more = found_->caught - std::size_t(names.size());
    if (more > 0)
        names.append(tr("and %L1 more").arg(more));
    return names;
}

void RuleProbe::list(const WatchedFolder& folder) {
    listing_.start([folder, &platform = around_.platform, make = around_.makeJudge](
                       const auto&) { return RuleEngine(platform, *make()).readyFiles(folder); },
                   [this](Expected<ReadyFiles> files) {
                       if (!files) {
                           error_ = tr("%1 can’t be read: %2", "a folder, and why")
                                        .arg(folderName_, files.error().message);
                           return setCounting(false);
                       }
                       files_ = std::make_shared<const ReadyFiles>(*std::move(files));
                       look();
                   });
}

void RuleProbe::look() {
    untilLook_.reset();
    if (!files_ || !rule_)
        return;
    giveUp();
    looking_.start(
        [rule = *rule_, files = files_, &platform = around_.platform,
         make = around_.makeJudge](const LatestWork::MayContinue& mayContinue) {
            return ruleCatch(rule, *files, platform, *make(), mayContinue);
        },
        [this](std::optional<RuleCatch> found) {
            if (found)
                show(std::move(found));
        });
    untilCounting_ = around_.timers.after(shortWork, [this] { setCounting(true); });
}

void RuleProbe::giveUp() {
    untilLook_.reset();
    untilCounting_.reset();
    looking_.drop();
}

void RuleProbe::show(std::optional<RuleCatch> found) {
    untilCounting_.reset();
    found_ = std::move(found);
    isCounting_ = false;
    Q_EMIT changed();
    untilSpoken_ = around_.timers.after(stillness, [this] {
        spoken_ = text();
        Q_EMIT spokenChanged();
    });
}

void RuleProbe::setCounting(bool counting) {
    isCounting_ = counting;
    Q_EMIT changed();
}

} // namespace quillon
