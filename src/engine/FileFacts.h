#pragma once

#include "engine/TextSubject.h"
#include "model/ConditionAttribute.h"
#include "model/FileKind.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

class KindClassifier;

/// What the conditions may ask about one file. Each fact is read when it is first asked for and
/// never twice. Text is in Unicode canonical composition; what is returned by view or reference
/// holds until `reset`. One thread at a time.
class FileFacts {
public:
    /// `file.path` is relative to `folder`; all four must outlive the facts.
    FileFacts(const Platform& platform, KindClassifier& kinds, const std::string& folder,
              const ListedFile& file);
    FileFacts(const FileFacts&) = delete;
    FileFacts& operator=(const FileFacts&) = delete;

    /// Turns to another file of the same folder, which must outlive the facts. Cheaper than new
    /// ones.
    void reset(const ListedFile& file);

    [[nodiscard]] const std::string& path() const; ///< absolute
    [[nodiscard]] const FileStatus& status() const { return file_->status; }

    [[nodiscard]] const TextSubject& fullName() { return names().full; }
    [[nodiscard]] const TextSubject& name() { return names().stem; } ///< without the extension
    [[nodiscard]] const TextSubject& extension() { return names().extension; }
    [[nodiscard]] FileKind kind();
    [[nodiscard]] const Expected<QStringList>& tags(); ///< lower-cased
    [[nodiscard]] const std::vector<TextSubject>& whereFrom();
    /// The date behind one of the four date attributes; none for any other attribute.
    [[nodiscard]] std::optional<Timestamp> date(ConditionAttribute attribute) const;

private:
    /// The last component of the path and its parts, pointing into the two texts.
    struct Names {
        QString text;
        QString lower;
        TextSubject full, stem, extension;
        bool areRead = false;
    };
    [[nodiscard]] Names& names() {
        if (!names_.areRead)
            readNames();
        return names_;
    }
    void readNames();

    const Platform& platform_;
    KindClassifier& kinds_;
    const std::string& folder_;
    const ListedFile* file_;
    mutable std::string path_; ///< empty until asked for
    Names names_;
    std::optional<FileKind> kind_;
    std::optional<Expected<QStringList>> tags_;
    QStringList whereFromTexts_; ///< what whereFrom_ points into
    std::optional<std::vector<TextSubject>> whereFrom_;
};

} // namespace quillon
