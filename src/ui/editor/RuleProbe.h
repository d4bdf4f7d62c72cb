#pragma once

#include "model/WatchedFolder.h"
#include "platform/Timers.h"
#include "ui/LatestWork.h"
#include "ui/editor/RuleCatch.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// Says all the while what a rule that is being written would catch in its folder. The folder is
/// listed once, when it is opened; a rule is looked at a moment after the last change of it, and
/// the look at an older one is given up. All of it in the background.
class RuleProbe final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(bool isCounting READ isCounting NOTIFY changed)
    Q_PROPERTY(bool isError READ isError NOTIFY changed)
    Q_PROPERTY(QStringList names READ names NOTIFY changed)
    Q_PROPERTY(QString spoken READ spoken NOTIFY spokenChanged)

public:
    /// All borrowed. A judge is made for every look and asks nobody anything.
    struct Surroundings {
        const Platform& platform;
        Background& background;
        Timers& timers;
        std::function<std::unique_ptr<FileJudge>()> makeJudge;
    };

    explicit RuleProbe(Surroundings around, QObject* parent = nullptr);
    ~RuleProbe() override;

    void open(const WatchedFolder& folder);
    void setRule(const Rule& rule);
    void close();

    /// "Catches 14 of 120 files now", "Counting…", or why the folder can't be looked into.
    [[nodiscard]] QString text() const;
    [[nodiscard]] bool isCounting() const { return isCounting_; }
    [[nodiscard]] bool isError() const { return !error_.isEmpty(); }
    /// Of files that would be caught, ten at most, and how many more there are.
    [[nodiscard]] QStringList names() const;
    /// The text, once it has stood still.
    [[nodiscard]] QString spoken() const { return spoken_; }
    [[nodiscard]] const std::optional<RuleCatch>& found() const { return found_; }

Q_SIGNALS:
    void changed();
    void spokenChanged();

private:
    using Files = std::shared_ptr<const ReadyFiles>;

    void list(const WatchedFolder& folder);
    void look();
    void giveUp();
    void show(std::optional<RuleCatch> found);
    void setCounting(bool counting);

    Surroundings around_;
    LatestWork listing_;
    LatestWork looking_;
    Files files_; ///< none before they are listed
    std::optional<Rule> rule_;
    std::unique_ptr<Timer> untilLook_;
    std::unique_ptr<Timer> untilCounting_;
    std::unique_ptr<Timer> untilSpoken_;
    bool isCounting_ = false;
    QString error_;
    QString folderName_;
    std::optional<RuleCatch> found_;
    QString spoken_;
};

} // namespace quillon
