#pragma once

#include <QByteArray>
#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace quillon {

/// The body of a request that can be sent once. Qt sends a request again when the line breaks
/// before there is an answer, unless its body can't be had again; and a question that reached its
/// model must not be paid for twice.
class BodyOnce final : public QIODevice {
    Q_OBJECT

public:
    explicit BodyOnce(QByteArray body) : body_(std::move(body)) {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] qint64 bytesAvailable() const override { return body_.size() - at_; }
    bool reset() override { return false; }

protected:
    qint64 readData(char* to, qint64 most) override {
        const qint64 size = std::min(most, bytesAvailable());
        std::memcpy(to, body_.constData() + at_, static_cast<std::size_t>(size));
        at_ += size;
        return size;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray body_;
    qint64 at_ = 0;
};

} // namespace quillon
