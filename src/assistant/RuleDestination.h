#pragma once

#include "assistant/RuleWriter.h"

#include <optional>
#include <string>

namespace quillon {

/// The folder that a model means by what it wrote: a path as it is, the name of another watched
/// folder, or a subfolder of this one. Nothing when it says none.
[[nodiscard]] std::optional<QString> resolveDestination(const QString& text,
                                                        const RulePlace& place);

/// The folder in which files that are sent there would end, with every link and ".." followed as it
/// stands now; what isn't there yet would be made. Fails like destinationFolder, and for a name
/// that is too long. Looks at the disk.
[[nodiscard]] Expected<std::string> landingPlace(const QString& destination,
                                                 const Platform& platform);

/// What the user should know before files go there, in a sentence that says where that is: it lies
/// outside of this folder, the other watched ones and the home folder once links and ".." are
/// followed, it is hidden, or it is no folder that could be made. Nothing when all is well. Looks
/// at the disk.
[[nodiscard]] std::optional<QString> destinationWarning(const QString& destination,
                                                        const RulePlace& rulePlace,
                                                        const Platform& platform);

} // namespace quillon
