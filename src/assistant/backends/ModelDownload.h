#pragma once

#include "assistant/backends/PullStream.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>

namespace quillon {

/// Has a server on this machine download a model. On the event loop's thread; the download stops
/// when the object goes, and another one goes on where it stopped.
class ModelDownload {
public:
    /// What is called is called from the event loop, `done` last and once.
    struct Listener {
        std::function<void(PullProgress)> progressed;
        std::function<void(Expected<void>)> done;
    };

    /// `host` is the text of a setting. Nothing heard for as long as `patience` counts as failed.
    /// Every error is a whole sentence.
    ModelDownload(const QString& host, QString name, Listener listener,
                  std::chrono::milliseconds patience = std::chrono::seconds(90));
    ~ModelDownload();
    ModelDownload(const ModelDownload&) = delete;
    ModelDownload& operator=(const ModelDownload&) = delete;

private:
    void ask(const QUrl& host);
    void readOn();
    void finished();
    void refused();
    void end(Expected<void> result);

    QString name_;
    Listener listener_;
    QNetworkAccessManager manager_;
    QNetworkReply* reply_ = nullptr;
    PullStream stream_;
    QTimer patience_;
};

} // namespace quillon
