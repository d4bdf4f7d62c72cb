#pragma once

#include "platform/FileChooser.h"
#include "platform/FileManager.h"
#include "platform/LoginItem.h"

#include <vector>

namespace quillon::testing {

/// A desktop that notes what it is asked for and chooses what the test says.
struct FakeDesktop final : FileChooser, FileManager, LoginItem {
    std::optional<std::string> choice; ///< nothing: the user cancels
    std::vector<std::string> revealed;
    QStringList addresses;
    bool startsAtLogin = false;

    void chooseFolder(const QString&, const std::string&, Chosen chosen) override {
        chosen(choice);
    }
    void chooseFile(const QString&, const std::string&, Chosen chosen) override { chosen(choice); }
    void chooseNewFile(const QString&, const QString&, Chosen chosen) override { chosen(choice); }
    void reveal(const std::string& path) override { revealed.push_back(path); }
    void openAddress(const QString& address) override { addresses.append(address); }
    [[nodiscard]] bool isOn() const override { return startsAtLogin; }
    [[nodiscard]] Expected<void> setOn(bool on) override {
        startsAtLogin = on;
        return {};
    }
};

} // namespace quillon::testing
