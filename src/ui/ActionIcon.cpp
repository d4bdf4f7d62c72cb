#include "ui/ActionIcon.h"

#include <array>

namespace quillon {

namespace {

/// In the order of the types.
constexpr auto icons = std::to_array<std::u16string_view>({
    u"edit-move",
    u"edit-copy",
    u"edit-rename",
    u"tools-wizard",
    u"tag",
    u"tag-delete",
    u"view-group",
    u"archive-extract",
    u"tools-wizard",
    u"dialog-scripts",
    u"user-trash",
});
static_assert(icons.size() == rawValues<ActionType>.size());

} // namespace

QString actionIcon(ActionType type) {
    return QStringView(icons[static_cast<std::size_t>(type)]).toString();
}

} // namespace quillon
