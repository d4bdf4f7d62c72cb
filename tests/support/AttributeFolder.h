#pragma once

#include <QByteArray>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <string>

namespace quillon::testing {

/// A temporary folder on a file system that holds extended attributes of users' files, where the
/// machine has one.
class AttributeFolder {
public:
    AttributeFolder();

    [[nodiscard]] bool isUsable() const { return folder_ != nullptr; }
    /// Makes an empty file, anew when there is one, and returns its path.
    [[nodiscard]] std::string file(const std::string& name) const;
    [[nodiscard]] std::string link(const std::string& name, const std::string& target) const;

private:
    std::unique_ptr<QTemporaryDir> folder_;
};

/// Raw attributes, by the system's own calls. False when the system refuses.
bool setAttribute(const std::string& path, const char* name, const QByteArray& value);
[[nodiscard]] std::optional<QByteArray> attribute(const std::string& path, const char* name);

} // namespace quillon::testing
