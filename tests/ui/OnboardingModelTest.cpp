#include "ui/dobbin/OnboardingModel.h"

#include "support/AIBench.h"
#include "support/AppStoreBench.h"
#include "support/FakeDesktop.h"
#include "support/FakePlatform.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;

/// Some folders can't be read, whoever asks.
struct GuardedFiles final : NoFileSystem {
    const FileSystem& real;
    std::string denied;

    explicit GuardedFiles(const FileSystem& files) : real(files) {}
    [[nodiscard]] Expected<Listing> list(const std::string& folder,
                                         const ListOptions& options) const override {
        if (folder == denied)
            return failure(ErrorKind::permissionDenied, u"Permission denied"_s);
        return real.list(folder, options);
    }
    [[nodiscard]] Expected<FileStatus> status(const std::string& path) const override {
        return real.status(path);
    }
};

class OnboardingModelTest : public ::testing::Test {
protected:
    OnboardingModelTest() {
        for (const char* file : {"Downloads/a", "Downloads/b", "Documents/c", "Locked/d"})
            bench.disk.machine.write(file, "");
        files.denied = bench.path("Locked").toStdString();
        start();
    }
    void start() {
        model = std::make_unique<OnboardingModel>(OnboardingModel::Surroundings{
            .store = *bench.store,
            .settings = bench.settings,
            .fileSystem = files,
            .background = bench.background,
            .fileChooser = desktop,
            .loginItem = desktop,
            .toasts = toasts,
            .onDevice = card,
            .home = bench.path("").toStdString(),
            .places = [this] {
                const auto place = [this](const char* name, const QString& symbol) {
                    return UserPlace{bench.path(name).toStdString(), symbol};
                };
                return std::vector{place("Downloads", u"folder-download"_s),
                                   place("Desktop", u"user-desktop"_s),
                                   place("Documents", u"folder-documents"_s),
                                   place("Locked", u"folder-pictures"_s)};
            }});
        bench.background.finish();
    }
    void next() {
        model->next();
        bench.background.finish();
    }
    /// A tick, the name, and what is said of it.
    [[nodiscard]] QStringList offered() {
        QStringList lines;
        for (const OnboardingRow& row :
             static_cast<KeyedRows<OnboardingRow>*>(model->folders())->rows())
            lines.append((row.isTicked ? u"x "_s : u"- "_s) + row.name + u": "_s +
                         (row.isWatched ? u"watched"_s : row.countText + row.reason));
        return lines;
    }

    AIBench ai;
    AppStoreBench bench;
    GuardedFiles files{bench.platform.fileSystem};
    FakeDesktop desktop;
    Toasts toasts;
    OnDeviceCard card{ai.settings, [this]() -> AIManager& { return *ai.manager; }};
    std::unique_ptr<OnboardingModel> model;
};

TEST_F(OnboardingModelTest, WatchesTheFoldersThatAreTickedAndGoesThroughItsPages) {
    EXPECT_TRUE(model->isRunning());
    EXPECT_EQ(model->nextText(), u"Get Started"_s);
    next();
    EXPECT_THAT(offered(), ElementsAre(u"x Downloads: 2 files"_s, u"- Documents: 1 file"_s,
                                       u"- Locked: Quillon isn’t allowed to read Locked"_s));
    EXPECT_EQ(model->nextText(), u"Watch 1 Folder"_s);
    model->setTicked(bench.path("Documents"), true);
    model->setTicked(bench.path("Locked"), true);
    EXPECT_EQ(model->nextText(), u"Watch 2 Folders"_s);
    desktop.choice = bench.disk.machine.makeFolder("Scans");
    model->chooseFolder();
    bench.background.finish();
    EXPECT_EQ(offered().back(), u"x Scans: 0 files"_s);
    EXPECT_TRUE(bench.store->folders().empty()) << "nothing is watched before it is said";
    next();
    ASSERT_EQ(bench.store->folders().size(), 3U);
    EXPECT_EQ(bench.store->folders()[0].symbolName, u"folder-download"_s);
    EXPECT_EQ(bench.store->folders()[2].name(), u"Scans"_s);
    EXPECT_EQ(bench.store->folders()[0].timing(), TidyTiming::live);
    model->setNotifies(true);
    model->setLaunchAtLogin(true);
    EXPECT_EQ(bench.settings.value(u"notificationsEnabled"_s), u"true"_s);
    EXPECT_TRUE(desktop.startsAtLogin);
    next();
    EXPECT_TRUE(card.isChecking());
    EXPECT_EQ(bench.settings.value(u"hasOnboarded"_s), std::nullopt);
    next();
    EXPECT_FALSE(model->isRunning());
    EXPECT_EQ(bench.settings.value(u"hasOnboarded"_s), u"true"_s);
}

TEST_F(OnboardingModelTest, BeginsAgainWhenItWasNotGoneThrough) {
    next();
    next();
    start();
    EXPECT_TRUE(model->isRunning());
    EXPECT_EQ(model->step(), 0);
    EXPECT_EQ(bench.store->folders().size(), 1U) << "what was chosen stays";
    next();
    EXPECT_EQ(offered().front(), u"x Downloads: watched"_s);
    EXPECT_EQ(model->nextText(), u"Continue"_s);
    model->back();
    model->skip();
    start();
    EXPECT_FALSE(model->isRunning());
    model->start();
    EXPECT_TRUE(model->isRunning());
}

} // namespace
} // namespace quillon::testing
