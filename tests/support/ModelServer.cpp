#include "support/ModelServer.h"

#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype fullBuffer = 256 * 1024;

QByteArray bodyOf(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// Nothing until all of it has come.
std::optional<ModelServer::Request> parsed(const QByteArray& received) {
    const qsizetype headEnd = received.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return std::nullopt;
    const QByteArrayList lines = received.first(headEnd).replace("\r\n", "\n").split('\n');
    const QByteArrayList first = lines[0].split(' ');
    if (first.size() != 3)
        return std::nullopt;
    const qsizetype mark = first[1].indexOf('?');
    ModelServer::Request request{.method = first[0],
                                 .path = mark < 0 ? first[1] : first[1].first(mark),
                                 .query = mark < 0 ? QByteArray() : first[1].sliced(mark + 1),
                                 .headers = {},
                                 .body = received.sliced(headEnd + 4)};
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const qsizetype colon = lines[i].indexOf(':');
        request.headers[lines[i].first(colon).toLower()] = lines[i].sliced(colon + 1).trimmed();
    }
    return request.body.size() < request.headers["content-length"].toLongLong()
               ? std::nullopt
               : std::optional(request);
}

QByteArray headOf(const ModelServer::Answer& answer) {
    QByteArray head = "HTTP/1.1 " + QByteArray::number(answer.status) + " Recorded\r\n" +
                      "content-type: application/json\r\nconnection: close\r\n";
    for (const auto& [name, value] : answer.headers)
        head += name + ": " + value + "\r\n";
    head += answer.chunk > 0
                ? "transfer-encoding: chunked"
                : "content-length: " + QByteArray::number(answer.body.size() + answer.padding);
    return head + "\r\n\r\n";
}

QByteArray inChunks(const QByteArray& body, qsizetype size) {
    QByteArray text;
    for (qsizetype at = 0; at < body.size(); at += size) {
        const QByteArray piece = body.mid(at, size);
        text += QByteArray::number(piece.size(), 16) + "\r\n" + piece + "\r\n";
    }
    return text;
}

} // namespace

QJsonObject ModelServer::Request::json() const {
    return QJsonDocument::fromJson(body).object();
}

/// One connection: one request and its answer.
class ModelServer::Line final : public QObject {
public:
    Line(ModelServer& server, QTcpSocket* socket)
        : QObject(socket), server_(server), socket_(socket) {
        connect(socket, &QTcpSocket::readyRead, this, [this] { read(); });
        connect(socket, &QTcpSocket::bytesWritten, this, [this] { pad(); });
        connect(socket, &QTcpSocket::disconnected, this,
                [this] { server_.hungUp_ += isAnswered_ && answer_.isSilent; });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }

private:
    void read() {
        received_ += socket_->readAll();
        const std::optional<Request> request = parsed(received_);
        if (!request || isAnswered_)
            return;
        isAnswered_ = true;
        answer_ = server_.answerTo(*request);
        if (!answer_.isSilent)
            QTimer::singleShot(answer_.delay, this, [this] { write(); });
    }

    void write() {
        if (answer_.raw) {
            send(*answer_.raw);
            return socket_->disconnectFromHost();
        }
        const qsizetype most = answer_.cutAfter.value_or(answer_.body.size());
        const QByteArray body = answer_.body.first(std::min(most, answer_.body.size()));
        send(headOf(answer_));
        if (answer_.chunk > 0) {
            send(inChunks(body, answer_.chunk));
            if (!answer_.cutAfter)
                send("0\r\n\r\n");
        } else {
            send(body);
        }
        isPadding_ = true;
        pad();
    }

    void pad() {
        if (!isPadding_)
            return;
        while (!answer_.cutAfter && answer_.padding > 0 && socket_->bytesToWrite() < fullBuffer) {
            const qsizetype size = qsizetype(std::min<qint64>(answer_.padding, 64 * 1024));
            answer_.padding -= size;
            send(QByteArray(size, ' '));
        }
        if (answer_.cutAfter || answer_.padding == 0)
            socket_->disconnectFromHost(); // once what is written has gone
    }

    void send(const QByteArray& bytes) { server_.bytesSent_ += socket_->write(bytes); }

    ModelServer& server_;
    QTcpSocket* socket_;
    QByteArray received_;
    Answer answer_;
    bool isAnswered_ = false;
    bool isPadding_ = false;
};

ModelServer::ModelServer() {
    auto* const server = new QTcpServer;
    server->listen(QHostAddress::LocalHost);
    port_ = server->serverPort();
    QObject::connect(server, &QTcpServer::newConnection, server, [this, server] {
        while (QTcpSocket* const socket = server->nextPendingConnection())
            new Line(*this, socket);
    });
    server->moveToThread(&thread_);
    QObject::connect(&thread_, &QThread::finished, [server] { delete server; }); // on its thread
    thread_.start();
}

ModelServer::~ModelServer() {
    thread_.quit();
    thread_.wait();
}

QString ModelServer::host() const {
    return u"http://127.0.0.1:%1"_s.arg(port_);
}

void ModelServer::play(const QByteArray& path, Handler handler) {
    const std::lock_guard guard(lock_);
    handlers_[path] = std::move(handler);
}

void ModelServer::play(const QByteArray& path, const Answer& answer) {
    play(path, [answer](const Request&) { return answer; });
}

void ModelServer::play(const QByteArray& path, const std::deque<Answer>& answers) {
    play(path, [left = answers](const Request&) mutable {
        const Answer answer = left.front();
        if (left.size() > 1)
            left.pop_front();
        return answer;
    });
}

void ModelServer::haveModels(const QStringList& names) {
    QJsonArray models;
    for (const QString& name : names)
        models.append(QJsonObject{
            {u"name"_s, name},
            {u"model"_s, name},
            {u"modified_at"_s, u"2026-03-02T10:11:12.131415161+01:00"_s},
            {u"size"_s, 2'019'393'189},
            {u"digest"_s, u"a80c4f17acd55265feec403c7aef86be0c25983ab279d83f3bcd3abbcb5b8b72"_s},
            {u"details"_s, QJsonObject{{u"format"_s, u"gguf"_s},
                                       {u"family"_s, u"llama"_s},
                                       {u"parameter_size"_s, u"3.2B"_s},
                                       {u"quantization_level"_s, u"Q4_K_M"_s}}}});
    play("/api/tags", {.body = bodyOf({{u"models"_s, models}})});
    play("/api/show",
         {.body = bodyOf({{u"details"_s, QJsonObject{{u"family"_s, u"llama"_s}}},
                          {u"capabilities"_s, QJsonArray{u"completion"_s, u"tools"_s}}})});
}

QList<ModelServer::Request> ModelServer::requests() const {
    const std::lock_guard guard(lock_);
    return requests_;
}

QList<ModelServer::Request> ModelServer::requests(const QByteArray& path) const {
    QList<Request> found = requests();
    found.removeIf([&](const Request& request) { return request.path != path; });
    return found;
}

ModelServer::Answer ModelServer::answerTo(const Request& request) {
    const std::lock_guard guard(lock_);
    requests_.append(request);
    const auto handler = handlers_.find(request.path);
    return handler == handlers_.end() ? Answer{.status = 404, .body = "404 page not found"}
                                      : (*handler)(request);
}

ModelServer::Answer ModelServer::claudeAnswer(const QString& text, const QString& stopReason) {
    const QJsonArray content{QJsonObject{{u"type"_s, u"text"_s}, {u"text"_s, text}}};
    return {.body = bodyOf(
                {{u"id"_s, u"msg_01XFDUDYJgAACzvnptvVoYEL"_s},
                 {u"type"_s, u"message"_s},
                 {u"role"_s, u"assistant"_s},
                 {u"model"_s, u"claude-haiku-5-5"_s},
                 {u"content"_s, content},
                 {u"stop_reason"_s, stopReason},
                 {u"stop_sequence"_s, QJsonValue()},
                 {u"usage"_s, QJsonObject{{u"input_tokens"_s, 412}, {u"output_tokens"_s, 37}}}})};
}

ModelServer::Answer ModelServer::claudeError(int status, const QString& message) {
    return {.status = status,
            .body = bodyOf({{u"type"_s, u"error"_s},
                            {u"error"_s, QJsonObject{{u"type"_s, u"recorded_error"_s},
                                                     {u"message"_s, message}}}})};
}

ModelServer::Answer ModelServer::chatAnswer(const QString& text, const QString& doneReason) {
    return {.body = bodyOf(
                {{u"model"_s, u"llama3.2:latest"_s},
                 {u"created_at"_s, u"2026-03-02T10:12:01.406Z"_s},
                 {u"message"_s, QJsonObject{{u"role"_s, u"assistant"_s}, {u"content"_s, text}}},
                 {u"done_reason"_s, doneReason},
                 {u"done"_s, true},
                 {u"prompt_eval_count"_s, 412},
                 {u"eval_count"_s, 37}})};
}

ModelServer::Answer ModelServer::chatError(int status, const QString& message) {
    return {.status = status, .body = bodyOf({{u"error"_s, message}})};
}

} // namespace quillon::testing
