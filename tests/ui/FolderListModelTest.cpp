#include "ui/folders/FolderListModel.h"

#include "model/Uuid.h"
#include "support/AppStoreBench.h"
#include "support/FakeDesktop.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

struct FolderListModelTest : ::testing::Test {
    AppStoreBench bench;
    FakeDesktop desktop;
    Toasts toasts;
    FolderListModel model{{.store = *bench.store,
                           .fileSystem = bench.platform.fileSystem,
                           .background = bench.background,
                           .fileChooser = desktop,
                           .toasts = toasts}};
    int resets = 0;

    FolderListModelTest() {
        QObject::connect(&model, &QAbstractItemModel::modelReset, [this] { ++resets; });
    }

    QString add(const std::string& name) { return uuidText(bench.addFolder(name)); }
    QStringList names() const {
        QStringList all;
        for (const FolderRow& row : model.rows())
            all.append(row.name);
        return all;
    }
    QList<QUrl> urls(const std::vector<std::string>& places) const {
        QList<QUrl> all;
        for (const std::string& place : places)
            all.append(QUrl::fromLocalFile(bench.path(place)));
        return all;
    }
};

TEST_F(FolderListModelTest, TakesFoldersThatAreDroppedWhereTheyAreDroppedAndNothingElse) {
    add("first");
    const QString second = add("second");
    bench.disk.machine.makeFolder("a");
    bench.disk.machine.makeFolder("b");
    bench.disk.machine.write("notes.txt", "x");

    model.addDropped(urls({"a", "notes.txt", "b"}), 1);
    bench.background.finish();
    EXPECT_EQ(names(), (QStringList{u"first"_s, u"a"_s, u"b"_s, u"second"_s}));
    EXPECT_EQ(toasts.sentence(), u"notes.txt isn’t a folder"_s);
    EXPECT_EQ(model.currentIndex(), 2);

    model.addDropped(urls({"second"}), 0);
    bench.background.finish();
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(model.currentKey(), second);
    EXPECT_EQ(toasts.sentence(), u"second is watched already"_s);
    EXPECT_FALSE(model.mayTake({QUrl(u"https://example.org"_s)}));
    EXPECT_EQ(resets, 0);
}

TEST_F(FolderListModelTest, ReordersWithinTheListAndSavesTheOrder) {
    const QString a = add("a");
    add("b");
    const QString c = add("c");
    model.moveBefore(a, 3);
    EXPECT_EQ(names(), (QStringList{u"b"_s, u"c"_s, u"a"_s}));
    model.moveBy(c, -1);
    model.moveBy(c, -1);    // there is nothing above
    model.moveBefore(c, 1); // which is where it is
    EXPECT_EQ(names(), (QStringList{u"c"_s, u"b"_s, u"a"_s}));
    model.moveBefore(a, 1);
    EXPECT_EQ(names(), (QStringList{u"c"_s, u"a"_s, u"b"_s}));
    EXPECT_EQ(bench.saved().folders.front().name(), u"c"_s);
}

TEST_F(FolderListModelTest, RemovesAFolderOnlyWhenTheUserAgrees) {
    const QString key = add("in");
    bench.addRule(bench.mover(u"txt"_s, "out"), *uuidFromText(key));
    model.remove(key);
    EXPECT_EQ(model.question()->title(), u"Stop watching in?"_s);
    EXPECT_EQ(model.question()->text(), u"Its rule goes too. Your files stay where they are."_s);
    model.question()->decline();
    EXPECT_EQ(model.rowCount(), 1);
    model.remove(key);
    model.question()->agree();
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_TRUE(model.currentKey().isEmpty());
}

TEST_F(FolderListModelTest, TellsOfTroubleAndMendsAMissingFolder) {
    const QString key = add("card");
    add("other");
    const Rule rule = bench.mover(u"txt"_s, "out");
    bench.addRule(rule, *uuidFromText(key));
    std::filesystem::rename(bench.disk.machine.at("card"), bench.disk.machine.at("moved"));
    bench.store->refreshAccess();
    bench.background.finish();
    EXPECT_EQ(model.row(key)->caption, u"Folder not found"_s);
    EXPECT_EQ(model.row(key)->badgeText, u"!"_s);

    desktop.choice = bench.disk.machine.at("other");
    model.locate(key);
    EXPECT_EQ(toasts.sentence(), u"other is watched already"_s);
    desktop.choice = bench.disk.machine.at("moved");
    model.locate(key);
    bench.background.finish();
    EXPECT_EQ(model.row(key)->name, u"moved"_s);
    EXPECT_EQ(model.row(key)->caption, u"As files land"_s);
    EXPECT_EQ(bench.store->folder(*uuidFromText(key))->rules, std::vector{rule});
}

TEST_F(FolderListModelTest, CountsErrorsUpToNinetyNine) {
    const QString key = add("in");
    bench.disk.machine.write("in the way", "x");
    for (int i = 0; i < 100; ++i)
        bench.disk.machine.write("in/" + std::to_string(i) + ".txt", "x");
    bench.pass(10s);
    bench.addRule(bench.mover(u"txt"_s, "in the way"), *uuidFromText(key));
    EXPECT_EQ(model.row(key)->badgeText, u"99+"_s);
    EXPECT_EQ(model.row(key)->description, u"As files land. 100 errors."_s);
}

TEST_F(FolderListModelTest, ConfirmsThatARuleWasCopiedAndLeadsThere) {
    const QString from = add("from");
    const QString to = add("to");
    model.select(from);
    const Rule rule = bench.mover(u"txt"_s, "out");
    bench.addRule(rule, *uuidFromText(from));
    model.copyRule(uuidText(rule.id), to);
    EXPECT_EQ(toasts.sentence(), u"Copied “Move txt” to to"_s);
    toasts.act();
    EXPECT_EQ(model.currentKey(), to);
}

} // namespace
} // namespace quillon::testing
