#pragma once

#include "platform/Error.h"

#include <QByteArray>
#include <QHash>
#include <QString>

namespace quillon {

/// How far a model has been downloaded.
struct PullProgress {
    qint64 done = 0;
    qint64 total = 0; ///< bytes that are known of so far; 0 before any are

    [[nodiscard]] int percent() const {
        return total > 0 ? int(100.0 * double(done) / double(total)) : 0;
    }
    bool operator==(const PullProgress&) const = default;
};

/// Reads what a local server tells while it downloads a model: one JSON object a line.
class PullStream {
public:
    /// Any piece of it. Fails with `io` and what the server says is wrong, or with `invalid` for
    /// what can't be understood; there is no going on after that.
    [[nodiscard]] Expected<void> add(const QByteArray& bytes);

    [[nodiscard]] const PullProgress& progress() const { return progress_; }
    /// The server has said that the model is there.
    [[nodiscard]] bool isComplete() const { return isComplete_; }

private:
    [[nodiscard]] Expected<void> takeLine(const QByteArray& line);

    QByteArray rest_; ///< of a line whose end is still to come
    QHash<QString, PullProgress> parts_;
    PullProgress progress_;
    bool isComplete_ = false;
};

/// What the server says is wrong in a body or a line of it; empty when it says nothing.
[[nodiscard]] QString pullError(const QByteArray& json);

} // namespace quillon
