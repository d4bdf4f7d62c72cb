#pragma once

#include "platform/FileChooser.h"

#include <QFileDialog>

namespace quillon {

/// The toolkit's file dialogue, for desktops that have none of their own.
class DialogFileChooser final : public FileChooser {
public:
    void chooseFolder(const QString& title, const std::string& start, Chosen chosen) override;
    void chooseFile(const QString& title, const std::string& start, Chosen chosen) override;
    void chooseNewFile(const QString& title, const QString& suggestedName, Chosen chosen) override;
};

} // namespace quillon
