#include "ui/FolderLook.h"

namespace quillon {

FolderLook lookOf(const WatchedFolder& folder, std::size_t position) {
    FolderLook look{.tint = folder.colorIndex.value_or(-1)};
    if (look.tint < 0 || look.tint >= folderTints)
        look.tint = int(position % std::size_t(folderTints));
    if (folder.symbolName && !folder.symbolName->isEmpty())
        look.symbol = *folder.symbolName;
    return look;
}

} // namespace quillon
