#pragma once

#include <QString>

namespace quillon {

/// Whether somebody asks what Dobbin can do, which needs no model.
[[nodiscard]] bool isHelpQuestion(const QString& question);

[[nodiscard]] QString helpAnswer();

} // namespace quillon
