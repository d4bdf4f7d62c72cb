#pragma once

#include "assistant/DobbinJudge.h"
#include "assistant/RuleSuggestions.h"
#include "assistant/SuggestionCandidates.h"
#include "support/FakeClock.h"
#include "support/LinuxMachine.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace quillon::testing {

/// A real folder to make suggestions for.
struct SuggestionBench {
    LinuxMachine machine;
    FakeClock clock{machine.platform.clock.now()};
    Platform platform = [this] {
        const Platform& real = machine.platform;
        return Platform{real.fileSystem, real.trash,        real.tags,      real.provenance,
                        real.cloudFiles, real.contentTypes, real.processes, real.archives,
                        clock,           real.folders};
    }();
    DobbinJudge judge{machine.platform.fileSystem, machine.platform.clock};
    SuggestionRequest request;

    SuggestionBench() { request.folder.path = QString::fromStdString(machine.work()); }

    /// Makes a file that was written and opened so many days ago; a name with a slash at its end is
    /// a folder.
    void make(const std::string& name, int days = 2) const {
        if (name.ends_with('/'))
            machine.makeFolder(name);
        else
            machine.write(name, "contents");
        age(name, days);
    }
    void makeAll(const std::vector<std::string>& names, int days = 2) const {
        for (const std::string& name : names)
            make(name, days);
    }
    void makeMany(const std::string& stem, const std::string& extension, int count) const {
        for (int i = 1; i <= count; ++i)
            make(stem + std::to_string(i) + extension);
    }
    void comeFrom(const std::string& name, const QByteArray& address) const {
        EXPECT_TRUE(setAttribute(machine.at(name), "user.xdg.origin.url", address));
    }

    [[nodiscard]] FolderView view() const {
        auto view = FolderView::read(platform, judge, {}, request);
        EXPECT_TRUE(view);
        return std::move(*view);
    }
    [[nodiscard]] std::vector<RuleSuggestion> found() const {
        const FolderView seen = view();
        return shownOf(chosenSuggestions(seen, suggestionCandidates(seen), request.dismissed));
    }

private:
    void age(const std::string& name, int days) const {
        const timespec then{.tv_sec = ::time(nullptr) - days * 86'400L, .tv_nsec = 0};
        const timespec both[] = {then, then};
        EXPECT_EQ(::utimensat(AT_FDCWD, machine.at(name).c_str(), both, 0), 0);
    }
};

/// "File screenshots → Screenshots: 3", "Trash old installers: 4"
[[nodiscard]] inline QStringList inShort(const std::vector<RuleSuggestion>& suggestions) {
    QStringList texts;
    for (const RuleSuggestion& each : suggestions) {
        const auto destination = each.rule.actions.front().destination;
        const QString arrow =
            destination ? QStringLiteral(" → ") + destination->section(u'/', -1) : QString();
        texts.append(each.rule.name + arrow + QStringLiteral(": %1").arg(each.count));
    }
    return texts;
}

} // namespace quillon::testing
