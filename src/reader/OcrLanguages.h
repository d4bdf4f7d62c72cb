#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

/// Where the data of the installed languages lies; empty when none is installed.
[[nodiscard]] QString ocrDataFolder();

/// Which of the languages installed are to be looked for, the most likely one first: that of
/// `locale` ("de_AT.UTF-8"), then English, then others. Three at most, since each takes its time.
[[nodiscard]] QStringList ocrLanguages(const QStringList& installed, const QString& locale);

} // namespace quillon
