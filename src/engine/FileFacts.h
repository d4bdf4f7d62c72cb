#pragma once

#include "model/ConditionAttribute.h"
#include "model/FileKind.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace quillon {

class KindClassifier;

/// What the conditions may ask about one file. Each fact is read when it is first asked for and never
/// twice. Text is in Unicode canonical composition. One thread at a time.
class FileFacts {
public:
    /// `file.path` is relative to `folder`; all three must outlive the facts.
    FileFacts(const Platform& platform, KindClassifier& kinds, const std::string& folder,
              const ListedFile& file);

    [[nodiscard]] const std::string& path() const; ///< absolute
    [[nodiscard]] const FileStatus& status() const { return file_.status; }

    [[nodiscard]] const QString& fullName();
    [[nodiscard]] const QString& name(); ///< without the extension
    [[nodiscard]] const QString& extension();
    [[nodiscard]] const QString& lowerFullName();
    [[nodiscard]] const QString& lowerName();
    [[nodiscard]] const QString& lowerExtension();
    [[nodiscard]] FileKind kind();
    [[nodiscard]] const Expected<QStringList>& tags(); ///< lower-cased
    [[nodiscard]] const QStringList& whereFrom();
    /// The date behind one of the four date attributes.
    [[nodiscard]] std::optional<Timestamp> date(ConditionAttribute attribute) const;

private:
    const Platform& platform_;
    KindClassifier& kinds_;
    const std::string& folder_;
    const ListedFile& file_;
    mutable std::string path_;
    QString fullName_, name_, extension_, lowerFullName_, lowerName_, lowerExtension_;
    bool namesRead_ = false;
    std::optional<FileKind> kind_;
    std::optional<Expected<QStringList>> tags_;
    std::optional<QStringList> whereFrom_;
};

} // namespace quillon
