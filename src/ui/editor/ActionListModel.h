#pragma once

#include "engine/DateFormats.h"
#include "model/RuleAction.h"
#include "ui/editor/ExampleFile.h"
#include "ui/editor/FolderChoices.h"

#include <QAbstractListModel>
#include <QStringList>
#include <QVariantList>

#include <optional>
#include <vector>

namespace quillon {

/// The actions of a rule that is being edited, in their order: a row for each, with what it takes
/// to edit it.
class ActionListModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY edited)
    Q_PROPERTY(QVariantList types READ types CONSTANT)
    Q_PROPERTY(QStringList strategies READ strategies CONSTANT)
    Q_PROPERTY(QStringList tokens READ tokens NOTIFY tokensChanged)

public:
    enum Role {
        typeRole = Qt::UserRole, ///< index into `types`
        controlRole,     ///< name of the control that fits: "folder", "pattern", "tag", "none", …
        destinationRole, ///< as FolderChoices shows it
        patternRole,
        exampleRole, ///< a sentence: what a file would be called
        tagRole,
        strategyRole, ///< index into `strategies`
        keepRole,
        scriptRole,
        shortcutRole,
        spokenRole, ///< what the row is called
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const std::vector<RuleAction>& actions() const { return actions_; }
    void setActions(std::vector<RuleAction> actions);
    void setFolders(FolderChoices folders);
    void setExample(std::optional<ExampleFile> file);

    Q_INVOKABLE int add(int type); ///< the new row
    Q_INVOKABLE void remove(int row);
    Q_INVOKABLE void move(int from, int to);
    Q_INVOKABLE void setType(int row, int index);
    Q_INVOKABLE void setDestination(int row, const QString& path);
    Q_INVOKABLE void setPattern(int row, const QString& pattern);
    Q_INVOKABLE void setTag(int row, const QString& word);
    Q_INVOKABLE void setStrategy(int row, int index);
    Q_INVOKABLE void setKeepOriginal(int row, bool keep);
    Q_INVOKABLE void setScript(int row, const QString& command);
    Q_INVOKABLE void setShortcut(int row, const QString& name);

    [[nodiscard]] int count() const { return static_cast<int>(actions_.size()); }
    /// The text and the iconName of each.
    [[nodiscard]] static QVariantList types();
    [[nodiscard]] static QStringList strategies();
    /// What a pattern may hold.
    [[nodiscard]] QStringList tokens() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// By whomever.
    void edited();
    void tokensChanged();

private:
    [[nodiscard]] bool has(int row) const { return row >= 0 && row < count(); }
    [[nodiscard]] QString example(const RuleAction& action) const;
    template <typename Edit>
    void change(int row, const Edit& edit);
    void refresh(const QList<int>& roles);

    std::vector<RuleAction> actions_;
    FolderChoices folders_;
    std::optional<ExampleFile> example_;
    mutable std::optional<DateFormats> dates_; ///< made with the first example
};

} // namespace quillon
