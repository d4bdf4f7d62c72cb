#pragma once

#include "platform/Settings.h"

#include <string>

namespace quillon {

/// Settings in a text file that people can edit as well; a change of it is seen at the next look.
class IniSettings : public Settings {
public:
    /// Makes the file, and the folders that lead to it, when something is first set.
    explicit IniSettings(const std::string& path);

    [[nodiscard]] std::optional<QString> value(const QString& key) const override;
    [[nodiscard]] Expected<void> setValue(const QString& key, const QString& value) override;

private:
    QString path_;
};

} // namespace quillon
