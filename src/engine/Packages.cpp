#include "engine/Packages.h"

#include "platform/FileNames.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr auto packageExtensions = std::to_array<std::string_view>({
    "app",          "appex",         "aplibrary", "band",          "bundle",       "dsym",
    "fcpbundle",    "framework",     "graffle",   "imovielibrary", "kext",         "key",
    "logicx",       "lproj",         "mpkg",      "musiclibrary",  "numbers",      "pages",
    "photolibrary", "photoslibrary", "pkg",       "playground",    "plugin",       "prefpane",
    "qlgenerator",  "rtfd",          "saver",     "scptd",         "sparsebundle", "theater",
    "tvlibrary",    "workflow",      "xcarchive", "xcdatamodel",   "xcdatamodeld", "xcframework",
    "xcodeproj",    "xcworkspace",   "xpc",
});

} // namespace

bool isPackage(std::string_view name) {
    const std::string_view extension = splitName(name).extension;
    return std::ranges::any_of(packageExtensions, [&](std::string_view known) {
        return isSameIgnoringCase(extension, known);
    });
}

} // namespace quillon
