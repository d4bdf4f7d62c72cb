#include "model/ActionType.h"

namespace quillon {

namespace {

/// Two types share the wand.
constexpr auto symbols = std::to_array<std::u16string_view>({
    u"arrow.right.doc.on.clipboard",
    u"doc.on.doc",
    u"character.cursor.ibeam",
    u"wand.and.stars",
    u"tag",
    u"tag.slash",
    u"folder.badge.gearshape",
    u"archivebox",
    u"wand.and.stars",
    u"terminal",
    u"trash",
});
static_assert(symbols.size() == rawValues<ActionType>.size());

} // namespace

QString symbol(ActionType type) {
    return toQString(symbols[static_cast<std::size_t>(type)]);
}

} // namespace quillon
