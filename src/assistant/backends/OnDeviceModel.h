#pragma once

#include "assistant/AIRequest.h"
#include "assistant/backends/AIError.h"
#include "assistant/backends/HttpClient.h"
#include "assistant/backends/OnDeviceStatus.h"

#include <QByteArray>
#include <QCoroTask>
#include <QString>

#include <chrono>
#include <expected>
#include <optional>

namespace quillon {

template <typename T>
using AIExpected = std::expected<T, AIError>;

/// Asks a model that a server on this very machine runs: nothing leaves it. A value, like
/// ClaudeClient.
class OnDeviceModel {
public:
    using Status = OnDeviceStatus;

    struct Patience {
        std::chrono::milliseconds look = std::chrono::seconds(10);
        /// Without a graphics card a long question takes minutes.
        std::chrono::milliseconds respond = std::chrono::minutes(10);
    };

    /// Borrows the HTTP client; `host` is the text of a setting.
    OnDeviceModel(HttpClient& http, QString host, Patience patience,
                  SaidIn where = SaidIn::terminal)
        : http_(http), host_(std::move(host)), patience_(patience), where_(where) {}

    /// How things are with the model that was chosen, or where `chosen` is empty with the first one
    /// that is installed, can answer and runs here. When ready, `name` is what to ask.
    [[nodiscard]] QCoro::Task<LocalModelState> look(QString chosen) const;

    /// Each request stands alone; the server is told to keep nothing of it.
    [[nodiscard]] QCoro::Task<AIExpected<QString>> respond(QString model, AIRequest request) const;

    /// A conversation as the one prompt that the model gets.
    [[nodiscard]] static QString flatten(const QList<AIMessage>& messages);

    /// What an answer of the server means; one that doesn't fit the schema is none.
    [[nodiscard]] static AIExpected<QString> parse(const QByteArray& body, int status,
                                                   const std::optional<QByteArray>& schema,
                                                   SaidIn where = SaidIn::terminal);

private:
    HttpClient& http_;
    QString host_;
    Patience patience_;
    SaidIn where_;
};

} // namespace quillon
