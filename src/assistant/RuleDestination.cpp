#include "assistant/RuleDestination.h"

#include "assistant/PlainLine.h"
#include "engine/Destination.h"
#include "model/JsonReader.h"
#include "model/PathText.h"
#include "platform/FileNames.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <ranges>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t longestPath = 4095; // bytes that a path may have for the system

/// Models write names in quotes where the prompt shows them so.
QString withoutQuotes(const QString& text) {
    for (const QStringView quotes : {u"“”", u"\"\"", u"''"})
        if (text.size() >= 2 && text.front() == quotes.front() && text.back() == quotes.back())
            return text.sliced(1).chopped(1).trimmed();
    return text;
}

QStringView withoutSlashes(QStringView text) {
    while (text.startsWith(u'/'))
        text = text.sliced(1);
    while (text.endsWith(u'/'))
        text.chop(1);
    return text;
}

std::vector<std::string> components(std::string_view path) {
    std::vector<std::string> names;
    for (const auto part : path | std::views::split('/'))
        if (std::string name(part.begin(), part.end()); !name.empty())
            names.push_back(std::move(name));
    return names;
}

/// The folder as it is written. Fails also for what the system has no room for, which may be so
/// long that following it would take for ever.
Expected<std::string> writtenFolder(const QString& destination, const Platform& platform) {
    auto folder = destinationFolder(destination, platform.folders);
    if (folder && (folder->size() > longestPath ||
                   std::ranges::any_of(components(*folder),
                                       [](auto& name) { return name.size() > maxNameBytes; })))
        return failure(ErrorKind::invalid, u"its name is too long"_s);
    return folder;
}

/// Links and ".." are followed in turn, as the system does it.
std::string followed(const std::string& path, const FileSystem& fileSystem) {
    std::string place = "/";
    for (const std::string& name : components(path))
        place = name == ".." ? std::string(parentPath(place))
                             : fileSystem.resolved(joinPath(place, name));
    return place;
}

bool isWithin(const std::string& path, const std::string& folder) {
    return path == folder || path.starts_with(folder.ends_with('/') ? folder : folder + '/');
}

/// The innermost of the user's own folders that the path lies in; empty when it lies in none.
std::string ownFolder(const std::string& path, const RulePlace& place, const Platform& platform) {
    std::vector<std::string> own{place.folder.path.toStdString()};
    for (const WatchedFolder& folder : place.otherFolders)
        own.push_back(folder.path.toStdString());
    // Without a home of one's own everything would be beneath it.
    if (platform.folders.home != "/")
        own.push_back(platform.folders.home);
    std::string innermost;
    for (const std::string& folder : own)
        if (const std::string root = followed(folder, platform.fileSystem);
            !folder.empty() && isWithin(path, root) && root.size() > innermost.size())
            innermost = root;
    return innermost;
}

bool hasHiddenPart(std::string_view path) {
    return std::ranges::any_of(components(path),
                               [](const std::string& name) { return name.starts_with('.'); });
}

} // namespace

std::optional<QString> resolveDestination(const QString& text, const RulePlace& place) {
    const QString said = withoutQuotes(text.trimmed());
    const QString lower = said.toLower();
    if (said.isEmpty() || lower == "none"_L1 || lower == "n/a"_L1 || lower == "null"_L1)
        return std::nullopt;
    if (said.startsWith(u'~') || said.startsWith(u'/'))
        return said;
    for (const WatchedFolder& other : place.otherFolders)
        if (other.name().compare(said, Qt::CaseInsensitive) == 0)
            return other.path;
    QString name = said;
    name = withoutSlashes(name.remove(u".."_s)).toString();
    if (name.isEmpty())
        return std::nullopt;
    return appendedPath(place.folder.path, name);
}

Expected<std::string> landingPlace(const QString& destination, const Platform& platform) {
    auto folder = writtenFolder(destination, platform);
    if (folder)
        *folder = followed(*folder, platform.fileSystem);
    return folder;
}

std::optional<QString> destinationWarning(const QString& destination, const RulePlace& rulePlace,
                                          const Platform& platform) {
    const QString said = quotedForError(destination);
    const auto place = landingPlace(destination, platform);
    if (!place)
        return u"%1 is no folder that files could go to: %2."_s.arg(said, place.error().message);
    const std::string& end = *place;
    const QString endText = QString::fromStdString(end);
    const std::string own = ownFolder(end, rulePlace, platform);
    if (own.empty())
        return u"%1 lies outside of your own folders: files would go to %2."_s.arg(said, endText);
    if (hasHiddenPart(std::string_view(end).substr(own.size())))
        return u"%1 is hidden: files would go to %2."_s.arg(said, endText);
    if (plainLine(destination) != destination)
        return u"%1 has characters in its name that can't be seen: files would go to %2."_s.arg(
            said, endText);
    return std::nullopt;
}

} // namespace quillon
