#include "ui/editor/RuleProbe.h"

#include "store/Sentences.h"

#include <utility>

namespace quillon {

using namespace std::chrono_literals;

namespace {

constexpr auto pauseInTyping = 250ms;
constexpr auto shortWork = 300ms; ///< isn't worth a word
constexpr auto stillness = 1s;

} // namespace

RuleProbe::RuleProbe(Surroundings around, QObject* parent)
    : QObject(parent), around_(std::move(around)) {}

RuleProbe::~RuleProbe() {
    giveUp();
    if (isListingWanted_)
        *isListingWanted_ = false;
}

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
    if (isListingWanted_)
        *isListingWanted_ = false;
    isListingWanted_.reset();
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
    QStringList names = found_->names;
    const auto more = found_->caught - std::size_t(names.size());
    if (more > 0)
        names.append(tr("and %L1 more").arg(more));
    return names;
}

void RuleProbe::list(const WatchedFolder& folder) {
    struct Listed {
        Expected<ReadyFiles> files;
    };
    const auto wanted = std::make_shared<std::atomic<bool>>(true);
    const auto listed = std::make_shared<Listed>();
    isListingWanted_ = wanted;
    around_.background.start(
        [wanted, listed, folder, &platform = around_.platform, make = around_.makeJudge] {
            if (*wanted)
                listed->files = RuleEngine(platform, *make()).readyFiles(folder);
        },
        [this, wanted, listed] {
            if (!*wanted)
                return;
            if (!listed->files) {
                error_ = tr("%1 can’t be read: %2", "a folder, and why")
                             .arg(folderName_, listed->files.error().message);
                return setCounting(false);
            }
            files_ = std::make_shared<const ReadyFiles>(*std::move(listed->files));
            look();
        });
}

void RuleProbe::look() {
    untilLook_.reset();
    if (!files_ || !rule_)
        return;
    giveUp();
    struct Seen {
        std::optional<RuleCatch> found;
    };
    const auto wanted = std::make_shared<std::atomic<bool>>(true);
    const auto seen = std::make_shared<Seen>();
    isLookWanted_ = wanted;
    around_.background.start(
        [wanted, seen, rule = *rule_, files = files_, &platform = around_.platform,
         make = around_.makeJudge] {
            const auto mayContinue = [&] { return wanted->load(); };
            seen->found = ruleCatch(rule, *files, platform, *make(), mayContinue);
        },
        [this, wanted, seen] {
            if (*wanted && seen->found)
                show(std::move(seen->found));
        });
    untilCounting_ = around_.timers.after(shortWork, [this] { setCounting(true); });
}

void RuleProbe::giveUp() {
    untilLook_.reset();
    untilCounting_.reset();
    if (isLookWanted_)
        *isLookWanted_ = false;
    isLookWanted_.reset();
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
