#pragma once

#include "platform/FileTags.h"

namespace quillon {

/// Tags in extended attributes: the Finder's list, Samba's spelling of it, and the list that Linux
/// desktops show. All three are read. A new tag goes into the first and the last, and the tags that
/// only the Finder's list knew go into the last with it; a tag is removed from wherever it is. When
/// one list can't be written, those already written are put back.
class XattrTags : public FileTags {
public:
    [[nodiscard]] Expected<QStringList> tags(const std::string& path) const override;
    [[nodiscard]] Expected<bool> add(const std::string& path, const QString& name,
                                     int colorNumber) override;
    [[nodiscard]] Expected<bool> remove(const std::string& path, const QString& name) override;
};

} // namespace quillon
