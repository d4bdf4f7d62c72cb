#pragma once

#include <QString>
#include <QUuid>

namespace quillon {

/// The last rule that was copied to another folder, for the confirmation.
struct RuleCopy {
    QUuid id = QUuid::createUuid(); ///< fresh for each copy
    QString ruleName;
    QString folderName;
    QUuid folderID;

    bool operator==(const RuleCopy&) const = default;
};

} // namespace quillon
