#include "platform/linux/XattrProvenance.h"

#include "platform/linux/ExtendedAttributes.h"
#include "platform/linux/PropertyList.h"

namespace quillon {

namespace {

std::optional<QStringList> decodeText(const QByteArray& bytes) {
    return QStringList{QString::fromUtf8(bytes)};
}

struct OriginFormat {
    const char* attribute;
    std::optional<QStringList> (*decode)(const QByteArray&);
};

constexpr auto originFormats = std::to_array<OriginFormat>({
    {"user.com.apple.metadata:kMDItemWhereFroms", decodeStringList},
    {"user.xdg.origin.url", decodeText},
    {"user.xdg.referrer.url", decodeText},
});

} // namespace

QStringList XattrProvenance::whereFrom(const std::string& path) const {
    QStringList origins;
    for (const OriginFormat& format : originFormats) {
        const Expected<std::optional<QByteArray>> stored = readAttribute(path, format.attribute);
        if (stored && *stored) {
            origins += format.decode(**stored).value_or(QStringList());
        }
    }
    origins.removeAll(QString());
    origins.removeDuplicates();
    return origins;
}

} // namespace quillon
