#pragma once

#include "assistant/ModelAccess.h"
#include "assistant/RuleWriter.h"
#include "platform/Background.h"

#include <QCoroTask>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <stop_token>

namespace quillon {

/// "Describe with Dobbin": has a model write the rule that a sentence describes. One at a time; an
/// answer that comes after the folder was left, or after stop(), is dropped.
class RuleDrafting final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString sentence READ sentence WRITE setSentence NOTIFY sentenceChanged)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(QStringList warnings READ warnings NOTIFY changed)
    Q_PROPERTY(QString error READ error NOTIFY changed)
    Q_PROPERTY(QString unavailable READ unavailable NOTIFY changed)

public:
    struct Surroundings {
        const Platform& platform;
        Background& background;
        std::function<ModelAccess&()> assistant;
        /// Why Dobbin can't be asked, in a sentence; empty when he can. None: he always can.
        std::function<QCoro::Task<QString>()> whyUnavailable;
    };

    explicit RuleDrafting(Surroundings around, QObject* parent = nullptr);
    ~RuleDrafting() override;

    void open(RulePlace place, const QString& sentence);

    Q_INVOKABLE void draft();
    Q_INVOKABLE void stop();
    /// Looks again whether Dobbin can be asked.
    void refresh();

    [[nodiscard]] QString sentence() const { return sentence_; }
    void setSentence(const QString& sentence);
    [[nodiscard]] bool isBusy() const { return isBusy_; }
    /// About the last draft; empty before there is one.
    [[nodiscard]] QString note() const { return note_; }
    /// What the rule itself doesn't show: what was left out, and where files would go.
    [[nodiscard]] QStringList warnings() const { return warnings_; }
    [[nodiscard]] QString error() const { return error_; }
    [[nodiscard]] QString unavailable() const { return unavailable_; }

Q_SIGNALS:
    void sentenceChanged();
    void changed();
    void started();
    void drafted(const quillon::Rule& rule);

private:
    QCoro::Task<> ask(QString sentence);
    QCoro::Task<> lookWhetherAvailable();
    void understand(const QString& answer);
    void take(const Expected<RuleDraft>& draft);
    void fail(const QString& sentence);
    /// Of what is going on now; whatever was going on before is dropped.
    std::shared_ptr<bool> newLife();

    Surroundings around_;
    RulePlace place_;
    QString sentence_;
    bool isBusy_ = false;
    QString note_;
    QStringList warnings_;
    QString error_;
    QString unavailable_;
    std::uint64_t looks_ = 0; ///< whether he can be asked
    std::stop_source asking_; ///< a model
    std::shared_ptr<bool> isWanted_ = std::make_shared<bool>(true);
    std::shared_ptr<bool> isAlive_ = std::make_shared<bool>(true);
};

} // namespace quillon
