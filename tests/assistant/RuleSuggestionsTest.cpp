#include "engine/RuleChecks.h"
#include "support/FakeJudge.h"
#include "support/PrintQt.h"
#include "support/SuggestionBench.h"

#include <functional>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

Rule byExtension(const QString& extension, RuleAction action, bool isEnabled) {
    return {.isEnabled = isEnabled,
            .conditions = {{.attribute = ConditionAttribute::extension,
                            .op = MatchOperator::is,
                            .value = extension}},
            .actions = {std::move(action)}};
}

TEST(RuleSuggestions, areWhatTheFolderIsFullOf) {
    const RuleAction elsewhere{.type = ActionType::move, .destination = u"~/Elsewhere"_s};
    const struct {
        const char* what;
        std::function<void(SuggestionBench&)> fill;
        QStringList expected;
    } cases[] = {
        {"nothing", [](SuggestionBench&) {}, {}},
        {"screenshots of several desktops, and the folder that they would go to",
         [](SuggestionBench& bench) {
             bench.makeAll({"Screenshot from 2026-01-02 10-11-12.png", "Screenshots/",
                            "Bildschirmfoto vom 2026-01-02 10-11-12.png", "Screen Shot 3.png",
                            "Screenshotting.png", "Screenshot tips.md"});
         },
         {u"File screenshots → Screenshots: 3"_s}},
        {"two are too few",
         [](SuggestionBench& bench) {
             bench.makeAll({"a.pdf", "b.pdf"});
         },
         {}},
        {"only old installers",
         [](SuggestionBench& bench) {
             bench.clock.advance(std::chrono::days(40));
             bench.makeAll({"a.dmg", "b_1.2_amd64.deb", "c.msi", "D.AppImage", "program.exe"});
             bench.makeAll({"opened.dmg", "opened.msi"}, -38);
         },
         {u"Trash old installers: 3"_s}},
        {"none that came lately, whatever is noted of when they were opened",
         [](SuggestionBench& bench) {
             bench.makeAll({"a.dmg", "b.dmg", "c.dmg"}, 40);
         },
         {}},
        {"none in subfolders",
         [](SuggestionBench& bench) {
             bench.request.folder.isRecursive = true;
             bench.clock.advance(std::chrono::days(40));
             bench.makeAll({"a.dmg", "b.dmg", "c.dmg", "kept/d.dmg"});
         },
         {}},
        {"invoices and receipts by whole words",
         [](SuggestionBench& bench) {
             bench.makeAll({"invoice_7.pdf", "Rechnung 8.docx", "Receipt.jpg", "請求書.txt",
                            "Rechnung1.pdf", "alle Rechnungen1.pdf", "Quittungen.odt",
                            "2026发票.png", "Berechnungen.xls", "Invoices/"});
         },
         {u"File invoices and receipts → Invoices: 8"_s}},
        {"a file counts once, for what it is known as",
         [](SuggestionBench& bench) {
             bench.makeAll(
                 {"invoice 1.pdf", "invoice 2.pdf", "invoice 3.pdf", "x.pdf", "y.pdf", "z.pdf"});
         },
         {u"File invoices and receipts → Invoices: 3"_s}},
        {"unless it is one among many others",
         [](SuggestionBench& bench) {
             bench.makeMany("paper", ".pdf", 40);
             bench.makeAll({"invoice 1.pdf", "invoice 2.PDF", "invoice 3.pdf"});
         },
         {u"File PDF files → PDF: 43"_s}},
        {"neither sources, programs nor keys by their extension",
         [](SuggestionBench& bench) {
             for (const char* extension : {".cpp", ".desktop", ".pem", ".so", ".exe", ".weird!"})
                 bench.makeMany("x", extension, 4);
         },
         {}},
        {"neither unfinished nor hidden ones",
         [](SuggestionBench& bench) {
             bench.makeAll({"a.pdf", "b.pdf", ".c.pdf", "d.pdf.part", "e.pdf.crdownload"});
             bench.machine.write("f.pdf", "just now");
         },
         {}},
        {"the five most useful, by how many and how surely",
         [](SuggestionBench& bench) {
             bench.makeMany("a", ".mp3", 3);
             bench.makeMany("b", ".jpg", 5);
             bench.makeMany("c", ".txt", 4);
             bench.makeMany("d", ".zip", 3);
             bench.makeMany("e", ".mp4", 6);
             bench.makeMany("Screenshot ", ".png", 3);
         },
         {u"File screenshots → Screenshots: 3"_s, u"File archives → Archives: 3"_s,
          u"File MP4 files → MP4: 6"_s, u"File JPG files → JPG: 5"_s,
          u"File TXT files → TXT: 4"_s}},
        {"what another rule takes first isn't counted",
         [=](SuggestionBench& bench) {
             bench.makeMany("a", ".pdf", 4);
             bench.makeMany("Screenshot ", ".png", 3);
             bench.makeMany("Screenshot ", ".jpg", 2);
             bench.request.folder.rules = {byExtension(u"png"_s, elsewhere, true)};
         },
         {u"File PDF files → PDF: 4"_s}},
        {"nor what the folder has switched off",
         [=](SuggestionBench& bench) {
             bench.makeMany("a", ".pdf", 4);
             bench.makeMany("b", ".mp3", 4);
             bench.request.folder.rules = {
                 byExtension(u"pdf"_s, elsewhere, false),
                 byExtension(u"mp3"_s, {.type = ActionType::addTag}, false)};
         },
         {u"File MP3 files → MP3: 4"_s}},
        {"nor what a model is still to be asked about",
         [](SuggestionBench& bench) {
             bench.makeMany("a", ".pdf", 4);
             bench.makeMany("b", ".mp3", 4);
             Rule rule = byExtension(u"pdf"_s, {.type = ActionType::trash}, true);
             rule.conditions.push_back({.attribute = ConditionAttribute::dobbinSays,
                                        .op = MatchOperator::is,
                                        .value = u"an invoice"_s});
             bench.request.folder.rules = {rule};
         },
         {u"File MP3 files → MP3: 4"_s}},
        {"nor what a folder for new files leaves alone",
         [](SuggestionBench& bench) {
             bench.makeMany("a", ".pdf", 4);
             bench.request.folder.onlyNewFiles = true;
             const FolderView before = bench.view();
             for (const ListedFile* file : before.files())
                 bench.request.handled.insert(fileKey(bench.machine.at(file->path), file->status));
             bench.makeMany("b", ".mp3", 3);
             bench.make("b4.pdf");
         },
         {u"File MP3 files → MP3: 3"_s}},
        {"with subfolders, nothing that would take a file out of one where it isn't in place",
         [](SuggestionBench& bench) {
             bench.request.folder.isRecursive = true;
             bench.makeMany("a", ".pdf", 3);
             bench.make("PDF/e.pdf");
             bench.makeMany("b", ".jpg", 9);
             bench.make("2019/Rome/c.jpg");
         },
         {u"File PDF files → PDF: 3"_s}},
        {"nor what would move folders, or can't have its own",
         [](SuggestionBench& bench) {
             bench.makeAll({"a.pdf", "b.pdf", "c.pdf", "d.pdf/"});
             bench.makeAll({"a.mp3", "b.mp3", "c.mp3", "MP3"});
         },
         {}},
    };
    for (const auto& [what, fill, expected] : cases) {
        SCOPED_TRACE(what);
        SuggestionBench bench;
        fill(bench);
        const std::vector<RuleSuggestion> found = bench.found();
        EXPECT_EQ(inShort(found), expected);
        EXPECT_FALSE(bench.judge.hasPending());
        for (const RuleSuggestion& each : found)
            EXPECT_EQ(validationWarnings(each.rule), QStringList());

        // What is counted is what the rule really takes; a folder by the name of its destination
        // stays where it is.
        const bool isPlain = bench.request.folder.rules.empty() &&
                             !bench.request.folder.onlyNewFiles &&
                             !bench.request.folder.isRecursive;
        FakeJudge judge;
        const RuleEngine engine(bench.platform, judge);
        const auto ready = engine.readyFiles(bench.request.folder);
        ASSERT_TRUE(ready);
        for (const RuleSuggestion& each : isPlain ? found : std::vector<RuleSuggestion>()) {
            QStringList matches = engine.probe(each.rule, *ready).matches;
            matches.removeAll(
                each.rule.actions[0].destination.value_or(QString()).section(u'/', -1));
            EXPECT_EQ(each.count, std::size_t(matches.size()));
        }
    }
}

TEST(RuleSuggestions, knowTheHostThatFilesCameFrom) {
    SuggestionBench bench;
    bench.makeAll({"a.txt", "b.jpg", "c.mp3", "d.pdf"});
    bench.comeFrom("a.txt", "https://www.example.org/a");
    bench.comeFrom("b.jpg", "https://www.example.org/b?x=1");
    bench.comeFrom("c.mp3", "http://www.example.org/c");
    bench.comeFrom("d.pdf", "https://other.test/www.example.org/d");
    const auto found = bench.found();
    ASSERT_EQ(inShort(found), QStringList{u"File downloads from example.org → example.org: 3"_s});
    EXPECT_EQ(found[0].reason, u"3 files from example.org, all from the last days."_s);
}

TEST(RuleSuggestions, stayAwayOnceDismissed) {
    SuggestionBench bench;
    bench.makeMany("Screenshot ", ".png", 3);
    bench.make("Bildschirmfoto.png");
    bench.makeMany("a", ".txt", 3);
    const auto first = bench.found();
    ASSERT_EQ(inShort(first),
              (QStringList{u"File screenshots → Screenshots: 4"_s, u"File TXT files → TXT: 3"_s}));
    bench.request.dismissed = {first[0].keys.begin(), first[0].keys.end()};
    // Neither by a narrower rule nor as what else the same files are.
    EXPECT_EQ(inShort(bench.found()), QStringList{u"File TXT files → TXT: 3"_s});
    bench.makeMany("b", ".png", 4);
    EXPECT_EQ(inShort(bench.found()),
              (QStringList{u"File PNG files → PNG: 8"_s, u"File TXT files → TXT: 3"_s}));
    EXPECT_EQ(suggestionKey(first[0].rule), suggestionKey([&] {
                  Rule same = first[0].rule;
                  same.id = same.conditions[0].id = same.actions[0].id = QUuid::createUuid();
                  same.name = u"Another name"_s;
                  return same;
              }()));
}

} // namespace
} // namespace quillon::testing
