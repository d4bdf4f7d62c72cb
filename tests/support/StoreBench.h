#pragma once

#include "platform/linux/LinuxStorage.h"
#include "store/StoreSession.h"
#include "support/FakeClock.h"
#include "support/LinuxMachine.h"

#include <gtest/gtest.h>

namespace quillon::testing {

/// A store on a LinuxMachine. Waiting takes no time.
class StoreBench {
public:
    LinuxMachine machine;
    LinuxStorage storage;
    FakeClock clock;
    std::chrono::milliseconds waited{0};
    StorePlaces places{machine.platform.folders.data};
    StoreSession::Services services{
        .storage = storage,
        .fileSystem = machine.platform.fileSystem,
        .clock = clock,
        .pause = [this](std::chrono::milliseconds time) { waited += time; },
        .trashPlaces =
            [this](const std::string&) {
                return std::vector{machine.home() + "/.local/share/Trash/files"};
            },
        .temporaryTag = "ours"};

    std::unique_ptr<StoreSession> open() {
        auto session = StoreSession::open(places, services);
        EXPECT_TRUE(session) << session.error().message.toStdString();
        return session ? std::move(*session) : nullptr;
    }

    /// An intent for a file as it is now, with the folders of `targets`.
    Intent intentFor(const std::string& name, std::vector<std::string> targets) {
        const std::string path = machine.at(name);
        Intent intent{.entry = {},
                      .status = *machine.platform.fileSystem.status(path),
                      .targetFolders = std::move(targets)};
        intent.entry.date = clock.now();
        intent.entry.fileName = QString::fromStdString(name);
        intent.entry.originalPath = QString::fromStdString(path);
        intent.entry.currentPath = intent.entry.originalPath;
        return intent;
    }
};

} // namespace quillon::testing
