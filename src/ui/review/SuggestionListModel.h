#pragma once

#include "assistant/FolderSuggestions.h"
#include "platform/Timers.h"
#include "store/AppStore.h"
#include "ui/KeyedRows.h"
#include "ui/Toasts.h"

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// A rule that is offered.
struct SuggestionRow {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString reason MEMBER reason)
    Q_PROPERTY(QString sentence MEMBER sentence)
    Q_PROPERTY(QString iconName MEMBER iconName)
    Q_PROPERTY(QString caution MEMBER caution)

public:
    QString key = {};
    QString title = {};
    QString reason = {};   ///< "14 screenshots, the oldest from March."
    QString sentence = {}; ///< what the rule does
    QString iconName = {};
    QString caution = {}; ///< what to know before it is added; mostly nothing

    bool operator==(const SuggestionRow&) const = default;
};

/// Rules that Dobbin offers for the selected folder, as long as the user wants any. Looked for in
/// the background, and again after the folder or its rules have changed.
class SuggestionListModel final : public KeyedRows<SuggestionRow> {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    /// All borrowed for the model's life.
    struct Surroundings {
        AppStore& store;
        const Clock& clock;
        Background& background;
        Timers& timers;
        Toasts& toasts;
        SuggestionMemory& memory;
        std::function<FolderSuggestions&()> suggestions;
    };

    explicit SuggestionListModel(Surroundings around, QObject* parent = nullptr);
    ~SuggestionListModel() override;

    /// Adds the rule; a toast offers to take that and what the rule has done by then back.
    Q_INVOKABLE void add(const QString& key);
    /// It is not offered any more.
    Q_INVOKABLE void dismiss(const QString& key);
    /// Looks again soon.
    void refresh();
    /// Whether the user wants any, as they have said now.
    void setWanted(bool wanted);

    [[nodiscard]] int count() const { return rowCount(); }

Q_SIGNALS:
    void countChanged();

private:
    /// A rule that was added, with what it has done since.
    struct Deeds {
        QUuid ruleID;
        QUuid folderID;
        std::vector<QUuid> entryIDs = {};
    };

    void look();
    void show(std::vector<RuleSuggestion> found);
    void noteDeeds(const RunReport& report);
    void takeBack(const std::shared_ptr<Deeds>& deeds);
    void putBack(std::vector<QUuid> entryIDs);

    Surroundings around_;
    QUuid folderID_;
    std::vector<Rule> rules_; ///< of the folder when it was last looked at
    std::vector<RuleSuggestion> found_;
    std::shared_ptr<bool> isWanted_; ///< what is being looked for
    std::optional<bool> areWanted_;
    std::unique_ptr<Timer> untilLook_;
    std::weak_ptr<Deeds> deeds_; ///< of the last one that was added, while it can be taken back
};

} // namespace quillon
