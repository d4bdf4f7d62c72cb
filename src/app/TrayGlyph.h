#pragma once

#include "platform/TrayItem.h"

#include <QColor>
#include <QString>

#include <vector>

namespace quillon {

/// The colour of text on the panel of a desktop, by the names that it goes by ("GNOME",
/// "KDE", "ubuntu:GNOME"): some keep a dark panel whatever programs look like.
[[nodiscard]] QColor panelTextColor(const QString& desktopNames, bool isDark);

/// The guard in the sizes that panels ask for; in amber and with a dot while something needs
/// attention.
[[nodiscard]] std::vector<TrayPicture> trayGlyph(const QColor& color, bool needsAttention);

} // namespace quillon
