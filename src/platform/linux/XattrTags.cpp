#include "platform/linux/XattrTags.h"

#include "platform/FileNames.h"
#include "platform/linux/ExtendedAttributes.h"
#include "platform/linux/PropertyList.h"

namespace quillon {

namespace {

std::optional<QStringList> decodeZeroEndedList(const QByteArray& bytes) {
    return decodeStringList(bytes.endsWith('\0') ? bytes.chopped(1) : bytes);
}

QByteArray encodeZeroEndedList(const QStringList& entries) {
    return encodeStringList(entries) + '\0';
}

std::optional<QStringList> decodeCommas(const QByteArray& bytes) {
    if (!isValidUtf8(bytes.toStdString())) {
        return std::nullopt;
    }
    QStringList entries;
    for (const QString& entry : QString::fromUtf8(bytes).split(u',')) {
        if (!entry.trimmed().isEmpty()) {
            entries.append(entry.trimmed());
        }
    }
    return entries;
}

QByteArray encodeCommas(const QStringList& entries) {
    return entries.join(u',').toUtf8();
}

struct TagFormat {
    const char* attribute;
    std::optional<QStringList> (*decode)(const QByteArray&);
    QByteArray (*encode)(const QStringList&);
};

enum : std::size_t { finder, desktop, samba };

constexpr auto tagFormats = std::to_array<TagFormat>({
    {"user.com.apple.metadata:_kMDItemUserTags", decodeStringList, encodeStringList},
    {"user.xdg.tags", decodeCommas, encodeCommas},
    {"user.DosStream.com.apple.metadata:_kMDItemUserTags:$DATA", decodeZeroEndedList,
     encodeZeroEndedList},
});

/// What one attribute holds. An entry is a name, in the Finder's lists followed by a newline and
/// the number of its colour.
struct TagList {
    std::optional<QByteArray> stored;
    QStringList entries;
};
using TagLists = std::array<TagList, tagFormats.size()>;

QString nameOf(const QString& entry) {
    return entry.section(u'\n', 0, 0);
}

bool hasName(const QStringList& entries, const QString& name) {
    return std::ranges::any_of(entries, [&](const QString& entry) {
        return nameOf(entry).compare(name, Qt::CaseInsensitive) == 0;
    });
}

Expected<TagLists> readLists(const std::string& path) {
    TagLists lists;
    for (std::size_t i = 0; i < tagFormats.size(); ++i) {
        Expected<std::optional<QByteArray>> stored = readAttribute(path, tagFormats[i].attribute);
        if (!stored) {
            return std::unexpected(stored.error());
        }
        if (*stored && !(*stored)->isEmpty()) {
            std::optional<QStringList> entries = tagFormats[i].decode(**stored);
            if (!entries) {
                return failure(ErrorKind::invalid,
                               QStringLiteral("The list of tags can't be understood"));
            }
            lists[i].entries = std::move(*entries);
        }
        lists[i].stored = std::move(*stored);
    }
    return lists;
}

Expected<void> putBack(const std::string& path, const TagLists& before, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (const auto written = writeAttribute(path, tagFormats[i].attribute, before[i].stored);
            !written) {
            return written;
        }
    }
    return {};
}

Expected<bool> writeLists(const std::string& path, const TagLists& before, const TagLists& after) {
    for (std::size_t i = 0; i < tagFormats.size(); ++i) {
        if (after[i].entries == before[i].entries) {
            continue;
        }
        const QStringList& entries = after[i].entries;
        const auto value =
            entries.isEmpty() ? std::nullopt : std::optional(tagFormats[i].encode(entries));
        if (const auto written = writeAttribute(path, tagFormats[i].attribute, value); !written) {
            Error error = written.error();
            if (const auto restored = putBack(path, before, i); !restored) {
                error.message +=
                    QStringLiteral("; the tags are half changed: ") + restored.error().message;
            }
            return std::unexpected(error);
        }
    }
    return true;
}

} // namespace

Expected<QStringList> XattrTags::tags(const std::string& path) const {
    const Expected<TagLists> lists = readLists(path);
    if (!lists) {
        return std::unexpected(lists.error());
    }
    QStringList names;
    for (const TagList& list : *lists) {
        for (const QString& entry : list.entries) {
            if (!hasName(names, nameOf(entry))) {
                names.append(nameOf(entry));
            }
        }
    }
    return names;
}

Expected<bool> XattrTags::add(const std::string& path, const QString& name, int colorNumber) {
    const Expected<TagLists> before = readLists(path);
    if (!before) {
        return std::unexpected(before.error());
    }
    if (std::ranges::any_of(*before,
                            [&](const auto& list) { return hasName(list.entries, name); })) {
        return false;
    }
    TagLists after = *before;
    after[finder].entries.append(name + u'\n' + QString::number(colorNumber));
    for (const QString& entry : after[finder].entries) {
        // A comma in a name would make two tags of it.
        if (!nameOf(entry).contains(u',') && !hasName(after[desktop].entries, nameOf(entry))) {
            after[desktop].entries.append(nameOf(entry));
        }
    }
    return writeLists(path, *before, after);
}

Expected<bool> XattrTags::remove(const std::string& path, const QString& name) {
    const Expected<TagLists> before = readLists(path);
    if (!before) {
        return std::unexpected(before.error());
    }
    TagLists after = *before;
    for (TagList& list : after) {
        list.entries.removeIf([&](const QString& entry) { return hasName({entry}, name); });
    }
    const bool found =
        !std::ranges::equal(*before, after, {}, &TagList::entries, &TagList::entries);
    return found ? writeLists(path, *before, after) : Expected<bool>(false);
}

} // namespace quillon
