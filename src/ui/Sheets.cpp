#include "ui/Sheets.h"

namespace quillon {

void Sheets::open(const QString& name) {
    if (current_ == name)
        return;
    current_ = name;
    Q_EMIT currentChanged();
}

void Sheets::close() {
    open({});
}

} // namespace quillon
