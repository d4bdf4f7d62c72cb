#pragma once

#include "assistant/backends/AIManager.h"
#include "support/EventLoopApplication.h"
#include "support/FakeClock.h"
#include "support/ModelServer.h"

#include <QCoroTask>
#include <QHash>
#include <QTimer>

#include <memory>

namespace quillon::testing {

/// Answers from the event loop, as a real one does.
class FakeKeychain final : public Keychain {
public:
    QHash<QString, QString> kept;
    std::optional<Error> refusal; ///< of everything

    void read(const QString& account, std::function<void(Expected<QString>)> done) override {
        answer<QString>(std::move(done), account, [this, account] { return kept[account]; });
    }
    void save(const QString& value, const QString& account,
              std::function<void(Expected<void>)> done) override {
        if (!refusal)
            kept[account] = value;
        answer<void>(std::move(done), account, [] {});
    }
    void remove(const QString& account, std::function<void(Expected<void>)> done) override {
        answer<void>(std::move(done), account, [this, account] { kept.remove(account); });
    }

private:
    template <typename T>
    void answer(std::function<void(Expected<T>)> done, const QString& account, auto deed) {
        QTimer::singleShot(0, [this, account, deed, done = std::move(done)] {
            if (refusal)
                return done(std::unexpected(*refusal));
            if (!kept.contains(account))
                return done(failure(ErrorKind::notFound, QStringLiteral("nothing kept")));
            if constexpr (std::is_void_v<T>) {
                deed();
                done({});
            } else {
                done(deed());
            }
        });
    }
};

/// An AIManager whose backends are both played by one server.
class AIBench {
    EventLoopApplication application_;

public:
    struct Texts final : Settings {
        QHash<QString, QString> values;

        std::optional<QString> value(const QString& key) const override {
            return values.contains(key) ? std::optional(values[key]) : std::nullopt;
        }
        Expected<void> setValue(const QString& key, const QString& value) override {
            values[key] = value;
            return {};
        }
    };

    ModelServer server;
    Texts settings;
    FakeKeychain keychain;
    FakeClock clock;
    int forgotten = 0; ///< how often answers were to be forgotten
    std::unique_ptr<AIManager> manager;

    explicit AIBench(AIPatience patience = {}) {
        settings.values[QStringLiteral("ai.claudeHost")] = server.host();
        settings.values[QStringLiteral("ai.localHost")] = server.host();
        manager = std::make_unique<AIManager>(
            settings, keychain, clock, [this] { ++forgotten; }, patience);
    }

    /// Switches Claude on, with a key in the keychain.
    void useClaude(const QString& key = QStringLiteral("sk-test-1234")) {
        settings.values[QStringLiteral("ai.useClaude")] = QStringLiteral("true");
        keychain.kept[QStringLiteral("claude-api-key")] = key;
    }

    /// The answer, or the sentence about why there is none.
    QString ask(AIRequest request) {
        const Expected<QString> answer = QCoro::waitFor(manager->send(std::move(request)));
        return answer ? *answer : answer.error().message;
    }
    QString ask() { return ask({.system = {}, .messages = {{.text = QStringLiteral("?")}}}); }
};

} // namespace quillon::testing
