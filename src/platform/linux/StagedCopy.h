#pragma once

#include "platform/Error.h"
#include "platform/linux/FreeName.h"
#include "platform/linux/TreeSurvey.h"

#include <QStringList>

#include <string>

namespace quillon {

/// The copy of one file, link or folder on its way: first whole and durable under a hidden name
/// beside its destination, then published under a free name. Whatever goes wrong before that, the
/// hidden name is removed again with the object.
class StagedCopy {
public:
    /// The entry `root` of `sourceFolder` is to be copied into `targetFolder`, which is opened for
    /// reading. Both descriptors are borrowed. `temporary` is a free hidden name there.
    StagedCopy(int sourceFolder, const std::string& root, int targetFolder, std::string temporary);
    ~StagedCopy();
    StagedCopy(const StagedCopy&) = delete;
    StagedCopy& operator=(const StagedCopy&) = delete;

    /// Copies under the hidden name and makes sure that the source was not touched meanwhile
    /// (`changed`). With `willRemoveSource` it fails early where the source could not be removed.
    [[nodiscard]] Expected<void> make(bool willRemoveSource);

    /// Gives the copy the wanted name or a numbered one, durably.
    [[nodiscard]] Expected<FreeName> publish(const std::string& wantedName);

    /// Removes the source of a published copy, if it is still what was copied. Where the system
    /// forbids it, the published copy is taken back, so that the file stays whole at its source
    /// alone. Where the source has changed (`changed`), both stay.
    [[nodiscard]] Expected<void> removeSource();

    [[nodiscard]] const QStringList& losses() const { return losses_; }

private:
    [[nodiscard]] Expected<void> copyEntry(const SurveyedEntry& entry);
    [[nodiscard]] Expected<void> finishFolders();
    [[nodiscard]] Expected<void> checkSource(bool willRemoveSource) const;
    /// Whether nothing is left of the published copy.
    [[nodiscard]] bool takeBack();

    TreeCursor source_;
    TreeCursor target_;
    int targetFolder_;
    std::string temporary_;
    std::string published_;
    TreeSurvey sourceSurvey_;
    TreeSurvey targetSurvey_;
    QStringList losses_;
    bool isStaged_ = false;
};

} // namespace quillon
