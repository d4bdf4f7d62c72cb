#include "ui/UserPlaces.h"

#include <QDir>
#include <QStandardPaths>

#include <array>
#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

std::vector<UserPlace> userPlaces() {
    const std::array<std::pair<QStandardPaths::StandardLocation, QString>, 3> known{{
        {QStandardPaths::DownloadLocation, u"folder-download"_s},
        {QStandardPaths::DesktopLocation, u"user-desktop"_s},
        {QStandardPaths::DocumentsLocation, u"folder-documents"_s},
    }};
    std::vector<UserPlace> places;
    for (const auto& [location, symbol] : known) {
        const QString path = QDir::cleanPath(QStandardPaths::writableLocation(location));
        if (!path.isEmpty() && path != QDir::cleanPath(QDir::homePath()))
            places.push_back({path.toStdString(), symbol});
    }
    return places;
}

} // namespace quillon
