#pragma once

#include "platform/Error.h"

#include <QStringList>

#include <string>

namespace quillon {

/// The tags that a person sees on a file. Any thread.
class FileTags {
public:
    virtual ~FileTags() = default;

    /// Tag names without their colour numbers, in stored order, without repeats. No list is an
    /// empty one; a list that can't be decoded is `invalid`.
    [[nodiscard]] virtual Expected<QStringList> tags(const std::string& path) const = 0;

    /// Adds a tag with its Finder colour number (0 to 7). False when it is there already. A list
    /// that can't be decoded is left as it is and reported as `invalid`.
    [[nodiscard]] virtual Expected<bool> add(const std::string& path, const QString& name,
                                             int colorNumber) = 0;

    /// Takes out every entry of that name, letter case ignored. False when there is none.
    [[nodiscard]] virtual Expected<bool> remove(const std::string& path, const QString& name) = 0;
};

} // namespace quillon
