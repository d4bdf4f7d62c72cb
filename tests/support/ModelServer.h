#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QThread>

#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

namespace quillon::testing {

/// A server on loopback that plays both models' interfaces from recorded bodies, as well or as
/// badly as it is told to. It has a thread of its own, so that it answers while a test waits for a
/// child.
class ModelServer {
public:
    struct Request {
        QByteArray method;
        QByteArray path;                      ///< without the query
        QByteArray query;                     ///< "limit=1"
        QMap<QByteArray, QByteArray> headers; ///< names in lower case
        QByteArray body;

        [[nodiscard]] QJsonObject json() const;
    };

    struct Answer {
        int status = 200;
        QByteArray body = {};
        QList<std::pair<QByteArray, QByteArray>> headers = {};
        std::chrono::milliseconds delay{0};     ///< before the first byte
        qsizetype chunk = 0;                    ///< above 0: in chunks of so many bytes
        std::optional<qsizetype> cutAfter = {}; ///< hangs up after so many bytes of the body
        qint64 padding = 0;                     ///< so many spaces follow the body
        std::optional<QByteArray> raw = {};     ///< all that is sent, whatever it is
        bool isSilent = false;                  ///< nothing is sent and the line stays open
    };

    /// Called on the server's thread.
    using Handler = std::function<Answer(const Request&)>;

    /// Listens on a port that the system chooses, and answers 404 until it is told something else.
    ModelServer();
    ~ModelServer();

    /// "http://127.0.0.1:40123"
    [[nodiscard]] QString host() const;

    /// What is said at a path, from now on. From any thread, as all below.
    void play(const QByteArray& path, Handler handler);
    void play(const QByteArray& path, const Answer& answer);
    /// One after the other, the last for good.
    void play(const QByteArray& path, const std::deque<Answer>& answers);

    /// A local server that has these models: tags and show. Chats are up to `play`.
    void haveModels(const QStringList& names);

    [[nodiscard]] QList<Request> requests() const;
    [[nodiscard]] QList<Request> requests(const QByteArray& path) const;
    [[nodiscard]] qint64 bytesSent() const { return bytesSent_; }
    /// Callers that hung up before they were answered.
    [[nodiscard]] int hungUp() const { return hungUp_; }

    // Recorded bodies.

    [[nodiscard]] static Answer
    claudeAnswer(const QString& text, const QString& stopReason = QStringLiteral("end_turn"));
    [[nodiscard]] static Answer claudeError(int status, const QString& message);
    [[nodiscard]] static Answer chatAnswer(const QString& text,
                                           const QString& doneReason = QStringLiteral("stop"));
    [[nodiscard]] static Answer chatError(int status, const QString& message);

private:
    class Line;

    Answer answerTo(const Request& request);

    mutable std::mutex lock_;
    QMap<QByteArray, Handler> handlers_;
    QList<Request> requests_;
    std::atomic<qint64> bytesSent_ = 0;
    std::atomic<int> hungUp_ = 0;
    quint16 port_ = 0;
    QThread thread_;
};

} // namespace quillon::testing
