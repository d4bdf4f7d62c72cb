#include "ui/Sheets.h"

namespace quillon {

void Sheets::open(const QString& name) {
    if (name != current_)
        leave([this, name] { show(name); });
}

void Sheets::close() {
    show({});
}

void Sheets::leave(const std::function<void()>& then) {
    if (current_.isEmpty() || !guard_ || guard_(then))
        then();
}

void Sheets::show(const QString& name) {
    if (current_ == name)
        return;
    current_ = name;
    Q_EMIT currentChanged();
}

} // namespace quillon
