#pragma once

#include "assistant/backends/AIManager.h"
#include "ui/dobbin/OnDeviceCard.h"

#include <QCoroTask>
#include <QObject>
#include <QStringList>

#include <functional>

namespace quillon {

/// What Dobbin may do, and whether he asks Claude. Nothing is read from the keyring before open().
class ClaudeSettings final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool readContents READ readContents WRITE setReadContents NOTIFY changed)
    Q_PROPERTY(bool suggestRules READ suggestRules WRITE setSuggestRules NOTIFY changed)
    Q_PROPERTY(bool useClaude READ useClaude WRITE setUseClaude NOTIFY changed)
    Q_PROPERTY(QStringList models READ models CONSTANT)
    Q_PROPERTY(int model READ model WRITE setModel NOTIFY changed)
    Q_PROPERTY(QString requests READ requests NOTIFY changed)
    Q_PROPERTY(bool hasKey READ hasKey NOTIFY changed)
    Q_PROPERTY(QString keyText READ keyText NOTIFY changed)
    Q_PROPERTY(QString keyCaption READ keyCaption NOTIFY changed)
    Q_PROPERTY(bool isKeyringLocked READ isKeyringLocked NOTIFY changed)
    Q_PROPERTY(QString keyError READ keyError NOTIFY changed)
    Q_PROPERTY(bool isSaving READ isSaving NOTIFY changed)
    Q_PROPERTY(bool isEntering READ isEntering NOTIFY changed)
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(bool isNoteGood READ isNoteGood NOTIFY changed)

public:
    /// Borrows the card. The manager is made when the settings are first opened.
    ClaudeSettings(std::function<AIManager&()> assistant, const OnDeviceCard& card,
                   QObject* parent = nullptr);

    /// Looks at the keyring, too.
    Q_INVOKABLE void open();
    /// What has been set elsewhere is shown.
    void refresh();

    [[nodiscard]] bool readContents() const { return assistant_().readContents(); }
    void setReadContents(bool on) { note(assistant_().setReadContents(on)); }
    [[nodiscard]] bool suggestRules() const { return assistant_().suggestRules(); }
    void setSuggestRules(bool on) { note(assistant_().setSuggestRules(on)); }
    [[nodiscard]] bool useClaude() const { return assistant_().useClaude(); }
    void setUseClaude(bool on);
    [[nodiscard]] static QStringList models();
    [[nodiscard]] int model() const { return static_cast<int>(assistant_().claudeModel()); }
    void setModel(int index);
    [[nodiscard]] QString requests() const;

    [[nodiscard]] bool hasKey() const { return !assistant_().keySuffix().isEmpty(); }
    /// "Key ending 7f3Q"
    [[nodiscard]] QString keyText() const;
    [[nodiscard]] QString keyCaption() const;
    [[nodiscard]] bool isKeyringLocked() const { return isLocked_; }
    [[nodiscard]] QString keyError() const { return keyError_; }
    [[nodiscard]] bool isSaving() const { return isSaving_; }
    /// A key is asked for: there is none, or it is to be replaced.
    [[nodiscard]] bool isEntering() const { return isReplacing_ || (!hasKey() && !isLocked_); }
    /// What came of the last change.
    [[nodiscard]] QString note() const;
    [[nodiscard]] bool isNoteGood() const { return isKeySaved_; }

    /// Checks the key and keeps it; one that is kept already stays until the new one is.
    Q_INVOKABLE void saveKey(const QString& typed);
    Q_INVOKABLE void replaceKey();
    Q_INVOKABLE void dropReplacing();
    Q_INVOKABLE void removeKey();

Q_SIGNALS:
    void changed();
    /// What was typed is no longer needed.
    void keySaved();

private:
    QCoro::Task<> load();
    QCoro::Task<> save(QString typed);
    QCoro::Task<> remove();
    void note(const Expected<void>& result);
    void noteKeyring(const Expected<void>& result);

    std::function<AIManager&()> assistant_;
    const OnDeviceCard& card_;
    bool isReplacing_ = false;
    bool isSaving_ = false;
    bool isKeySaved_ = false; ///< here, lately
    bool isLocked_ = false;
    QString keyError_;
    QString keyringError_;
    QString error_;
};

} // namespace quillon
