#pragma once

#include "model/Rule.h"

#include <QString>
#include <QUuid>

namespace quillon {

/// A ready-made rule that one click adds to a folder.
struct Preset {
    QUuid id = QUuid::createUuid();
    QString title = {};
    QString description = {};
    QString symbolName = {};
    Rule rule = {};
};

} // namespace quillon
