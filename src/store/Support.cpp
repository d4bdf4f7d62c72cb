#include "store/Support.h"

#include <QUrl>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView supportAddress = u"support@quillon.example";
constexpr QStringView website = u"https://quillon.example";

} // namespace

QString mailtoURL(const QString& appVersion) {
    const QString subject = u"Quillon %1 — support request"_s.arg(appVersion);
    return u"mailto:%1?subject=%2"_s.arg(supportAddress,
                                         QString::fromLatin1(QUrl::toPercentEncoding(subject)));
}

QString websiteURL() {
    return website.toString();
}

} // namespace quillon
