#pragma once

#include "platform/FileChooser.h"
#include "store/AppStore.h"
#include "ui/Question.h"
#include "ui/Sheets.h"
#include "ui/Toasts.h"
#include "ui/editor/ActionListModel.h"
#include "ui/editor/CalendarMonth.h"
#include "ui/editor/ConditionListModel.h"
#include "ui/editor/RuleDrafting.h"
#include "ui/editor/RuleProbe.h"

#include <QObject>
#include <QSet>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// The draft of one rule that is being edited. Nothing is saved before save().
class RuleEditor final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY opened)
    Q_PROPERTY(bool isNew READ isNew NOTIFY opened)
    Q_PROPERTY(QString folderId READ folderId NOTIFY opened)
    Q_PROPERTY(QString title READ title NOTIFY opened)
    Q_PROPERTY(QVariantMap folder READ folder NOTIFY foldersChanged)
    Q_PROPERTY(QVariantList folderChoices READ folderChoices NOTIFY foldersChanged)
    Q_PROPERTY(QStringList shortcuts READ shortcuts NOTIFY shortcutsChanged)
    Q_PROPERTY(QString shortcutsPlace READ shortcutsPlace NOTIFY opened)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY edited)
    Q_PROPERTY(bool isEnabled READ isEnabled WRITE setIsEnabled NOTIFY edited)
    Q_PROPERTY(int matchMode READ matchMode WRITE setMatchMode NOTIFY edited)
    Q_PROPERTY(QStringList matchModes READ matchModes CONSTANT)
    Q_PROPERTY(QString matchModeTail READ matchModeTail NOTIFY edited)
    Q_PROPERTY(bool isChanged READ isChanged NOTIFY edited)
    Q_PROPERTY(QString conditionText READ conditionText NOTIFY edited)
    Q_PROPERTY(QString actionText READ actionText NOTIFY edited)
    Q_PROPERTY(QString sentence READ sentence NOTIFY edited)
    Q_PROPERTY(QStringList warnings READ warnings NOTIFY edited)
    Q_PROPERTY(bool hasOffer READ hasOffer NOTIFY offerChanged)
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    Q_PROPERTY(quillon::ConditionListModel* conditions READ conditions CONSTANT)
    Q_PROPERTY(quillon::ActionListModel* actions READ actions CONSTANT)
    Q_PROPERTY(quillon::RuleProbe* probe READ probe CONSTANT)
    Q_PROPERTY(quillon::RuleDrafting* dobbin READ dobbin CONSTANT)
    Q_PROPERTY(quillon::Question* question READ question CONSTANT)
    Q_PROPERTY(quillon::CalendarMonth* calendar READ calendar CONSTANT)

public:
    /// All borrowed.
    struct Surroundings {
        AppStore& store;
        Sheets& sheets;
        Toasts& toasts;
        FileChooser& fileChooser;
        RuleProbe::Surroundings probing;
        RuleDrafting::Surroundings drafting;
    };

    explicit RuleEditor(const Surroundings& around, QObject* parent = nullptr);
    ~RuleEditor() override;

    // Each opens the sheet, once a draft that is open and was changed may go.

    Q_INVOKABLE void edit(const QString& folderId, const QString& ruleId);
    Q_INVOKABLE void create(const QString& folderId);
    /// A new rule with a sentence for Dobbin, who begins at once.
    Q_INVOKABLE void describe(const QString& folderId, const QString& sentence);
    /// The rule that the store was asked to have edited; nothing when there is none.
    Q_INVOKABLE void openPending();

    /// Asks what there is to be asked, saves and closes.
    Q_INVOKABLE void save();
    /// Closes, once changes may go.
    Q_INVOKABLE void cancel();
    /// At once; a toast offers to undo it.
    Q_INVOKABLE void deleteRule();
    Q_INVOKABLE void takeOffer();
    Q_INVOKABLE void dropOffer();
    Q_INVOKABLE void chooseFolder(int actionRow);

    [[nodiscard]] bool isOpen() const { return opened_.has_value(); }
    [[nodiscard]] bool isNew() const { return isNew_; }
    [[nodiscard]] QString folderId() const;
    [[nodiscard]] QString title() const { return isNew_ ? tr("New rule") : tr("Edit rule"); }
    [[nodiscard]] QVariantMap folder() const { return choices_.look(folderID_); }
    [[nodiscard]] QVariantList folderChoices() const { return choices_.menuWithout(folderID_); }
    [[nodiscard]] QStringList shortcuts() const { return shortcuts_; }
    /// The folder that they lie in, as people read it.
    [[nodiscard]] QString shortcutsPlace() const;
    [[nodiscard]] QString name() const { return draft_.name; }
    void setName(const QString& name);
    [[nodiscard]] bool isEnabled() const { return draft_.isEnabled; }
    void setIsEnabled(bool enabled);
    [[nodiscard]] int matchMode() const { return static_cast<int>(draft_.matchMode); }
    void setMatchMode(int index);
    [[nodiscard]] static QStringList matchModes();
    [[nodiscard]] QString matchModeTail() const;
    [[nodiscard]] bool isChanged() const;
    [[nodiscard]] QString conditionText() const;
    [[nodiscard]] QString actionText() const;
    [[nodiscard]] QString sentence() const;
    /// What keeps the rule from catching or doing anything.
    [[nodiscard]] QStringList warnings() const;
    /// Whether Dobbin's rule waits because the draft was changed while he wrote it.
    [[nodiscard]] bool hasOffer() const { return offer_.has_value(); }
    /// What happened to the saved rule meanwhile, in a sentence.
    [[nodiscard]] QString notice() const { return notice_; }
    [[nodiscard]] ConditionListModel* conditions() { return &conditions_; }
    [[nodiscard]] ActionListModel* actions() { return &actions_; }
    [[nodiscard]] RuleProbe* probe() { return &probe_; }
    [[nodiscard]] RuleDrafting* dobbin() { return &dobbin_; }
    [[nodiscard]] Question* question() { return &question_; }
    /// To choose the day of a condition from.
    [[nodiscard]] CalendarMonth* calendar() { return &calendar_; }

    /// The draft as it stands.
    [[nodiscard]] const Rule& rule() const { return draft_; }

Q_SIGNALS:
    void opened();
    void edited();
    void foldersChanged();
    void shortcutsChanged();
    void offerChanged();
    void noticeChanged();
    /// The value in this row keeps the rule from being saved.
    void wrongCondition(int row);

private:
    struct Opening {
        QUuid folderID;
        Rule rule;
        bool isNew = true;
        QString sentence = {};
    };

    void open(const Opening& opening);
    void show(const Opening& opening);
    void forget();
    bool mayGo(const std::function<void()>& proceed);
    void show(const Rule& rule);
    void draftEdited();
    void takeDrafted(const Rule& rule);
    void useDrafted(const Rule& rule);
    void foldersEdited();
    void listShortcuts();
    [[nodiscard]] const Rule* savedRule() const;
    [[nodiscard]] QString whatHappened() const;
    bool askAboutOthersChange();
    void checkDestinations();
    void commit();

    Surroundings around_;
    AppStore& store_;
    QUuid folderID_;
    bool isNew_ = true;
    std::optional<Rule> opened_; ///< the rule as it was; none while nothing is edited
    Rule draft_;
    std::optional<Rule> beforeDobbin_; ///< the draft when he was asked
    std::optional<Rule> offer_;
    bool isDobbins_ = false;
    QSet<QString> dobbinsFolders_; ///< that the user did not choose
    FolderChoices choices_;
    QStringList shortcuts_;
    QString notice_;
    bool isShowing_ = false; ///< the models are being filled
    std::shared_ptr<bool> session_ = std::make_shared<bool>(true);

    ConditionListModel conditions_;
    ActionListModel actions_;
    RuleProbe probe_;
    RuleDrafting dobbin_;
    Question question_;
    CalendarMonth calendar_;
};

} // namespace quillon
