#include "model/FileKind.h"

namespace quillon {

namespace {

constexpr auto labels = std::to_array<std::u16string_view>({
    u"Images",
    u"Videos",
    u"Audio",
    u"Documents",
    u"PDFs",
    u"Archives",
    u"Code",
    u"Folders",
    u"Other",
});
static_assert(labels.size() == rawValues<FileKind>.size());

} // namespace

QString label(FileKind kind) {
    return toQString(labels[static_cast<std::size_t>(kind)]);
}

} // namespace quillon
