#pragma once

#include "store/AppStore.h"
#include "ui/KeyedRows.h"
#include "ui/Sheets.h"

namespace quillon {

/// A ready-made rule, as it is offered.
struct PresetRow {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString sentence MEMBER sentence)
    Q_PROPERTY(QString iconName MEMBER iconName)
    Q_PROPERTY(bool isAdded MEMBER isAdded)

public:
    QString key = {}; ///< its title
    QString sentence = {};
    QString iconName = {};
    bool isAdded = false; ///< the folder has a rule of that name

    bool operator==(const PresetRow&) const = default;
};

/// The ready-made rules, for one folder.
class PresetListModel final : public KeyedRows<PresetRow> {
    Q_OBJECT
    Q_PROPERTY(QString folderName READ folderName NOTIFY opened)
    Q_PROPERTY(int tint READ tint NOTIFY opened)
    Q_PROPERTY(QString symbol READ symbol NOTIFY opened)

public:
    /// Both are borrowed for the model's life.
    PresetListModel(AppStore& store, Sheets& sheets, QObject* parent = nullptr);

    /// Opens the sheet.
    Q_INVOKABLE void open(const QString& folderId);
    /// At the end of the folder's rules. Nothing when it is there already.
    Q_INVOKABLE void add(const QString& key);

    [[nodiscard]] QString folderName() const;
    [[nodiscard]] int tint() const;
    [[nodiscard]] QString symbol() const;

Q_SIGNALS:
    void opened();

private:
    void refresh();

    AppStore& store_;
    Sheets& sheets_;
    QUuid folderID_;
};

} // namespace quillon
