#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <string>

namespace quillon {

/// The desktop's own dialogue for choosing files. On the event loop's thread, without waiting:
/// `chosen` is called later with an absolute path, or with nothing when the user thinks better of
/// it.
class FileChooser {
public:
    using Chosen = std::function<void(std::optional<std::string>)>;

    virtual ~FileChooser() = default;

    /// `start` is the folder that is shown first; empty for the desktop's choice.
    virtual void chooseFolder(const QString& title, const std::string& start, Chosen chosen) = 0;
    virtual void chooseFile(const QString& title, const std::string& start, Chosen chosen) = 0;
    /// Asks before a file that exists would be replaced.
    virtual void chooseNewFile(const QString& title, const QString& suggestedName,
                               Chosen chosen) = 0;
};

} // namespace quillon
