#include "assistant/RuleWriter.h"

#include "assistant/RuleName.h"
#include "assistant/RuleWriterPrompt.h"
#include "engine/RuleSummary.h"
#include "support/AIBench.h"
#include "support/LinuxMachine.h"
#include "support/PrintQt.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using testing::AIBench;
using testing::LinuxMachine;
using testing::ModelServer;

namespace {

const QString muddled = u"Dobbin got muddled with that one. Try rephrasing it."_s;

QByteArray golden(const char* name) {
    QFile file(QStringLiteral(QUILLON_SOURCE_DIR "/tests/data/assistant/") +
               QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A model's answer from short forms: "Size|less than|5|GB; Name|is|a", and
/// "Move to folder|Receipts; Add tag|||green".
QString answerOf(const QString& conditions, const QString& actions, const QString& mode = u"all"_s,
                 const QString& name = u"A rule"_s) {
    const auto objects = [](const QString& items, std::initializer_list<QString> keys,
                            const QString& missing) {
        QJsonArray list;
        for (const QString& item : items.split(u"; "_s, Qt::SkipEmptyParts)) {
            const QStringList parts = item.split(u'|');
            QJsonObject object;
            qsizetype i = 0;
            for (const QString& key : keys)
                object.insert(key, parts.value(i++, missing));
            list.append(object);
        }
        return list;
    };
    const QJsonObject answer{
        {u"name"_s, name},
        {u"matchMode"_s, mode},
        {u"conditions"_s,
         objects(conditions, {u"attribute"_s, u"operator"_s, u"value"_s, u"sizeUnit"_s}, u"MB"_s)},
        {u"actions"_s,
         objects(actions, {u"type"_s, u"destination"_s, u"renamePattern"_s, u"tag"_s, u"sortBy"_s},
                 u"none"_s)},
        {u"note"_s, u" As it is. "_s}};
    return QString::fromUtf8(QJsonDocument(answer).toJson());
}

/// Downloads in a home folder, with Receipts outside of it and Desktop beside it.
class RuleWriter : public ::testing::Test {
protected:
    RuleWriter() {
        machine_.makeFolder(machine_.home() + "/Downloads");
        machine_.makeFolder(machine_.home() + "/../shared/receipts");
        machine_.makeFolder(machine_.home() + "/../secret");
        std::filesystem::create_symlink("../../secret", machine_.home() + "/Downloads/leak");
        std::filesystem::create_symlink("Downloads", machine_.home() + "/Alias");
        place_.folder.path = full(u"~/Downloads"_s);
        for (const QString& path : {full(u"^/shared/receipts"_s), full(u"~/Desktop"_s)}) {
            place_.otherFolders.emplace_back();
            place_.otherFolders.back().path = path;
        }
    }

    /// "~" at the beginning is the home folder, "^" the one around it.
    [[nodiscard]] QString full(QString path) const {
        const QString home = QString::fromStdString(machine_.home());
        if (path.startsWith(u'^'))
            return path.replace(0, 1, home.chopped(5));
        return path.startsWith(u'~') ? path.replace(0, 1, home) : path;
    }

    [[nodiscard]] Expected<RuleDraft> draft(const QString& answer) const {
        return draftFromJson(answer, place_, machine_.platform);
    }

    /// The rule in words, then "<where it goes>", a "*" for each warning and "!" when it needs
    /// consent.
    [[nodiscard]] QString told(const Expected<RuleDraft>& draft) const {
        if (!draft)
            return draft.error().message;
        QString text = summary(draft->rule);
        for (const RuleAction& action : draft->rule.actions)
            if (QString to = action.destination.value_or(QString()); !to.isEmpty())
                text += u" <%1>"_s.arg(
                    to.replace(full(u"~"_s), u"HOME"_s).replace(full(u"^"_s), u"ROOT"_s));
        text += QString(draft->warnings.size(), u'*');
        return draft->needsConsent ? text + u'!' : text;
    }

    LinuxMachine machine_;
    RulePlace place_;
};

} // namespace

TEST_F(RuleWriter, TeachesTheModelWordForWord) {
    EXPECT_EQ(ruleWriterPrompt(u"Downloads"_s, {u"Receipts"_s, u"Desktop"_s}).toUtf8(),
              golden("rule-writer-prompt.txt"));
    EXPECT_EQ(ruleWriterSchema(), golden("rule-writer-schema.json"));
    EXPECT_TRUE(
        ruleWriterPrompt(u"A"_s, {})
            .contains(
                u"Quillon folders: (none), or a bare name meaning a subfolder inside “A”."_s));
}

TEST_F(RuleWriter, RepairsConditions) {
    const struct {
        const char* said;
        const char* rule;
        const char* mode = "all";
    } rows[] = {
        {"Extension|is| .PDF ", "If extension is “pdf”"},
        {"Extension|is|.tar.gz.", "If extension is “tar.gz”"},
        {"Extension|ends with|ÄÖ", "If extension ends with “äö”"},
        {"Extension|is| . ", "If extension is “”*!"},
        {"Name|within last (days)|30", "If name contains “30”*!"},
        {"Name|equals|x", "If name contains “x”*!"},
        {"Name|begins with| Screen Shot.", "If name begins with “ Screen Shot.”"},
        {"Name|contains|", "If name contains “”*!"},
        {"Full name|matches regex|^IMG_", "If full name matches regex “^IMG_”"},
        {"Kind|contains|pdf", "If kind is PDFs*!"},
        {"Kind|is not|PDF", "If kind is not PDF*!"},
        {"Tag|is not|red", "If not tagged Red"},
        {"Tag|is|Red", "If tagged Red*!"},
        {"Size|less than|5 MB", "If smaller than 5 MB MB*!"},
        {"Date added|older than (days)|a week", "If added over a week days ago*!"},
        {"Date added|before|May 2024", "If added before May 2024*!"},
        {"Name|matches regex|(", "If name matches regex “(”*!"},
        {"Size|is|10|GB", "If larger than 10 GB*!"},
        {"Size|less than|5|TB", "If smaller than 5 MB"},
        {"Date added|contains|7", "If added in the last 7 days*!"},
        {"Date created|before|2024-01-01", "If created before 2024-01-01"},
        {"Last opened|older than (days)|30", "If not opened in over 30 days"},
        {"Where from|greater than|amazon.com", "If source contains “amazon.com”*!"},
        {"Dobbin says it|contains|a receipt", "If Dobbin says it's a receipt*!"},
        {"Dobbin says it|is|", "If Dobbin says it's *!"},
        {"Extension|is|jpg; Extension|is|png", "If extension is “jpg” or extension is “png”",
         "any"},
        {"Kind|is|pdf; Name|is|a", "Unless kind is PDFs or name is “a”", "none"},
        {"Kind|is|pdf; Name|is|a", "If kind is PDFs and name is “a”", "ANY"},
        {"Colour|is|red; Kind|is|pdf", "If kind is PDFs*!"},
        {"Colour|is|red; kind|is|pdf", "Never (no conditions)**!"},
        {"", "Never (no conditions)*!"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(told(draft(answerOf(QString::fromUtf8(row.said), u"Unpack archive"_s,
                                      QString::fromUtf8(row.mode))))
                      .remove(u" → Unpack archive"_s),
                  QString::fromUtf8(row.rule));
    const auto drafted = draft(answerOf(u"Name|is|a; Name|is|b|GB"_s, u"Unpack archive"_s));
    ASSERT_TRUE(drafted);
    EXPECT_EQ(drafted->note, u" As it is. "_s);
    EXPECT_EQ(drafted->rule.conditions[1].unit, SizeUnit::gb);
    EXPECT_NE(drafted->rule.conditions[0].id, drafted->rule.conditions[1].id);
    EXPECT_EQ(draft(answerOf(u"Last opened|greater than|30"_s, u"Move to Trash"_s))->warnings,
              QStringList(u"Dobbin compared “Last opened” by “greater than”, which it doesn't "
                          "have. The condition now reads “opened in the last 30 days”, which may "
                          "be the opposite of what you meant."_s));
}

TEST_F(RuleWriter, RepairsActions) {
    const struct {
        const char* said;
        const char* rule;
    } rows[] = {
        {"Move to folder|Bills; Add tag|||green",
         "Move to Bills, Tag Green <HOME/Downloads/Bills>"},
        {"Move to folder|One; Move to folder|Two", "Move to One <HOME/Downloads/One>"},
        {"Move to folder|; Move to folder|Two", "Move to …*!"},
        {"Copy to folder|One; Move to folder|Two",
         "Copy to One, Move to Two <HOME/Downloads/One> <HOME/Downloads/Two>"},
        {"Run shell script|rm; Move to folder|One", "Move to One <HOME/Downloads/One>*!"},
        {"Run Shortcut; Delete; Move to Trash", "Move to Trash*!"},
        {"Rename||", "Rename to “{name}”"},
        {"Rename||{date} {name}", "Rename to “{date} {name}”"},
        {"Rename with Dobbin", "Rename with Dobbin"},
        {"Add tag|||Green; Remove tag|||red", "Remove Red tag*!"},
        {"Add tag|||none; Add tag|||gray", "Tag Gray*!"},
        {"Sort into subfolder||||By month", "Sort into subfolders by month"},
        {"Sort into subfolder||||by month", "Sort into subfolders by kind"},
        {"Run shell script|rm", nullptr},
        {"Add tag|||teal", nullptr},
        {"move to trash", nullptr},
        {"", nullptr},
    };
    for (const auto& row : rows)
        EXPECT_EQ(told(draft(answerOf(u"Kind|is|pdf"_s, QString::fromUtf8(row.said))))
                      .remove(u"If kind is PDFs → "_s),
                  row.rule ? QString::fromUtf8(row.rule) : muddled)
            << row.said;
}

TEST_F(RuleWriter, SaysWhereItWouldMoveFilesTo) {
    const struct {
        QString said;
        const char* destination;  ///< and what told() says of it
        const char* landing = ""; ///< in the warning
    } rows[] = {
        {u"Receipts"_s, "<ROOT/shared/receipts>"},
        {u" DESKTOP\n"_s, "<HOME/Desktop>"},
        {u"Bills/2026/"_s, "<HOME/Downloads/Bills/2026>"},
        {u"../../etc"_s, "<HOME/Downloads/etc>"},
        {u".../..../x"_s, "<HOME/Downloads/.//x>"},
        {u"N/A"_s, "*!"},
        {u"none"_s, "*!"},
        {u"../.."_s, "*!"},
        {u" \t"_s, "*!"},
        {u"“”"_s, "*!"},
        {u" “receipts” "_s, "<ROOT/shared/receipts>"},
        {u"\"Receipts\""_s, "<ROOT/shared/receipts>"},
        {u"'~/Music'"_s, "<~/Music>"},
        {u"\""_s, "<HOME/Downloads/\">"},
        {u"“Receipts\""_s, "<HOME/Downloads/“Receipts\">"},
        {u"~/Documents/Receipts"_s, "<~/Documents/Receipts>"},
        {u"~"_s, "<~>"},
        {u"~/Alias/Bills"_s, "<~/Alias/Bills>"},
        {full(u"~/Music"_s), "<HOME/Music>"},
        {full(u"^/shared/receipts/2026"_s), "<ROOT/shared/receipts/2026>"},
        {full(u"~/nowhere/../../shared/receipts"_s), "<HOME/nowhere/../../shared/receipts>"},
        {full(u"^/shared/receipts2"_s), "<ROOT/shared/receipts2>*!", "ROOT/shared/receipts2."},
        {u"/"_s, "</>*!", "go to /."},
        {u"~/../../../../../../../../etc"_s, "<~/../../../../../../../../etc>*!", "go to /etc."},
        {u"~/../secret"_s, "<~/../secret>*!", "ROOT/secret."},
        {u"~/new/../../other"_s, "<~/new/../../other>*!", "ROOT/other."},
        {u"~root/x"_s, "<~root/x>*!", "not a full path"},
        {u"leak"_s, "<HOME/Downloads/leak>*!", "ROOT/secret."},
        {u"~/new/../Downloads/leak/deep"_s, "<~/new/../Downloads/leak/deep>*!",
         "ROOT/secret/deep."},
        {u"~/Alias/../../secret"_s, "<~/Alias/../../secret>*!", "ROOT/secret."},
        {u".ssh"_s, "<HOME/Downloads/.ssh>*!", "HOME/Downloads/.ssh."},
        {u"~/a/../.config/autostart"_s, "<~/a/../.config/autostart>*!", "HOME/.config/autostart."},
        {u"a\nb"_s, "<HOME/Downloads/a\nb>*!", "can't be seen"},
        {u"a\u202Egpj"_s, "<HOME/Downloads/a\u202Egpj>*!", "can't be seen"},
        {QString(300, u'a'), nullptr, "too long"},
        {u"~"_s + u"/abc"_s.repeated(2000), nullptr, "too long"},
    };
    for (const auto& row : rows) {
        const auto drafted = draft(answerOf(u"Kind|is|pdf"_s, u"Move to folder|"_s + row.said));
        ASSERT_TRUE(drafted) << row.said.toStdString();
        const QString text = told(drafted);
        if (row.destination)
            EXPECT_EQ(text.sliced(text.indexOf(u"<"_s) < 0 ? text.size() - 2 : text.indexOf(u'<')),
                      QString::fromUtf8(row.destination));
        else
            EXPECT_TRUE(text.endsWith(u"*!"_s)) << row.said.toStdString();
        QString warnings = drafted->warnings.join(u'\n');
        warnings.replace(full(u"~"_s), u"HOME"_s).replace(full(u"^"_s), u"ROOT"_s);
        EXPECT_TRUE(warnings.contains(QString::fromUtf8(row.landing)))
            << row.said.toStdString() << ": " << warnings.toStdString();
    }
}

TEST_F(RuleWriter, NamesARuleThatTheModelDidNotName) {
    const struct {
        QString said;
        const char* action;
        const char* name;
    } rows[] = {
        {u"  File bills \n"_s, "Move to folder|Bills", "File bills"},
        {u"Reçus 📄"_s, "Move to folder|Bills", "Reçus 📄"},
        {u"Bil\u202Els"_s, "Move to folder|Bills", "Bills"},
        {u""_s, "Move to folder|~/Documents/Bills/", "File into Bills"},
        {u"—!?…"_s, "Move to folder|", "File away"},
        {u"File\nbills"_s, "Copy to folder|a\tb", "Copy to a b"},
        {u"A\u0007b"_s, "Copy to folder|/", "Copy files"},
        {QString(61, u'a'), "Rename||{date}", "Rename files"},
        {u"📄"_s, "Rename with Dobbin", "Rename with Dobbin"},
        {u" "_s, "Add tag|||green", "Tag green files"},
        {u""_s, "Remove tag|||red", "Remove red tags"},
        {u""_s, "Sort into subfolder||||By extension", "Sort by extension"},
        {u""_s, "Unpack archive", "Unpack archives"},
        {u""_s, "Move to Trash", "Trash files"},
    };
    for (const auto& row : rows) {
        const auto drafted =
            draft(answerOf(u"Kind|is|pdf"_s, QString::fromUtf8(row.action), u"all"_s, row.said));
        ASSERT_TRUE(drafted);
        EXPECT_EQ(drafted->rule.name, QString::fromUtf8(row.name));
    }
}

TEST_F(RuleWriter, RefusesWhatIsNotOfTheFormThatWasAskedFor) {
    const QString good = answerOf(u"Kind|is|pdf"_s, u"Move to Trash"_s);
    EXPECT_EQ(told(draft(good)), u"If kind is PDFs → Move to Trash"_s);
    const auto many = [](qsizetype conditions, qsizetype actions) {
        return answerOf(QStringList(conditions, u"Kind|is|pdf"_s).join(u"; "_s),
                        QStringList(actions, u"Move to Trash"_s).join(u"; "_s));
    };
    EXPECT_TRUE(draft(many(50, 20)));
    QStringList answers{u""_s,
                        u"null"_s,
                        u"[]"_s,
                        u"{}"_s,
                        u"Sure! "_s + good,
                        good.chopped(3),
                        u"["_s + good + u']',
                        many(51, 1),
                        many(1, 21)};
    const QJsonObject whole = QJsonDocument::fromJson(good.toUtf8()).object();
    const auto add = [&](const QString& key, const QJsonValue& value) {
        QJsonObject broken = whole;
        value.isUndefined() ? broken.remove(key) : (void)broken.insert(key, value);
        answers.append(QString::fromUtf8(QJsonDocument(broken).toJson()));
    };
    for (const QString& key : whole.keys()) {
        add(key, QJsonValue::Undefined);
        add(key, QJsonValue::Null);
        add(key, 7);
    }
    for (const QString& list : {u"conditions"_s, u"actions"_s}) {
        add(list, QJsonObject());
        add(list, QJsonArray{u"Kind is pdf"_s});
        add(list, QJsonArray{QJsonObject{{u"type"_s, u"Move to Trash"_s}}});
    }
    for (const QString& answer : answers)
        EXPECT_EQ(told(draft(answer)), muddled) << answer.toStdString();
}

TEST_F(RuleWriter, IsTheSameWhicheverModelAnswers) {
    const QString answer = answerOf(u"Kind|is|pdf"_s, u"Move to folder|Receipts"_s);
    const AIRequest request = ruleRequest(u"Move PDFs to “Receipts”\n"_s, place_);
    AIBench bench;
    bench.server.haveModels({u"llama3.2:latest"_s});
    bench.server.play("/api/chat", ModelServer::chatAnswer(answer));
    bench.server.play("/v1/messages", ModelServer::claudeAnswer(answer));
    const auto local = draft(bench.ask(request));
    bench.useClaude();
    const auto claude = draft(bench.ask(request));
    EXPECT_EQ(told(local), u"If kind is PDFs → Move to receipts <ROOT/shared/receipts>"_s);
    EXPECT_EQ(told(claude), told(local));

    const QString prompt = ruleWriterPrompt(u"Downloads"_s, {u"receipts"_s, u"Desktop"_s});
    const auto asked = bench.server.requests("/v1/messages").at(0);
    EXPECT_EQ(asked.json()[u"model"_s], u"claude-sonnet-5-5"_s);
    EXPECT_EQ(asked.json()[u"system"_s].toString(), prompt);
    EXPECT_EQ(asked.json()[u"messages"_s].toArray().at(0)[u"content"_s].toString(),
              u"Move PDFs to “Receipts”\n"_s);
    for (const ModelServer::Request& sent : {asked, bench.server.requests("/api/chat").at(0)})
        EXPECT_TRUE(sent.body.contains(ruleWriterSchema())) << "in its order";
}

} // namespace quillon
