#pragma once

#include <QObject>

#include <mutex>

namespace quillon {

/// Carries what happened on another thread back to that of the receiver, for as long as it is
/// there. Shared by both; close() comes before the receiver goes.
class Mailbox {
public:
    explicit Mailbox(QObject* receiver) : receiver_(receiver) {}

    /// From any thread.
    template <typename Call>
    void post(Call call) {
        const std::lock_guard lock(mutex_);
        if (receiver_)
            QMetaObject::invokeMethod(receiver_, std::move(call), Qt::QueuedConnection);
    }
    void close() {
        const std::lock_guard lock(mutex_);
        receiver_ = nullptr;
    }

private:
    std::mutex mutex_;
    QObject* receiver_;
};

} // namespace quillon
