#pragma once

#include <QString>

#include <string>

namespace quillon {

/// What the desktop shows of files, and opens. On the event loop's thread; neither waits for it.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// Opens the folder that the file lies in, with the file selected where the desktop can.
    virtual void reveal(const std::string& path) = 0;
    /// A web or mail address, in whatever the user opens such things with.
    virtual void openAddress(const QString& address) = 0;
};

} // namespace quillon
