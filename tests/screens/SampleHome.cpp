#include "SampleHome.h"

#include "SampleFiles.h"
#include "SamplePast.h"
#include "store/PersistedState.h"
#include "store/StorePlaces.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <filesystem>
#include <fstream>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;
using Attribute = ConditionAttribute;
using Operator = MatchOperator;

namespace {

Condition condition(Attribute attribute, Operator op, const QString& value,
                    SizeUnit unit = SizeUnit::mb) {
    return {.attribute = attribute, .op = op, .value = value, .unit = unit};
}

RuleAction moveTo(const std::string& path) {
    return {.type = ActionType::move, .destination = QString::fromStdString(path)};
}

RuleAction tagAs(TagColor color) {
    return {.type = ActionType::addTag, .tag = color};
}

std::vector<Rule> downloadRules(const std::string& receipts) {
    return {
        {.name = u"File invoices"_s,
         .conditions = {condition(Attribute::extension, Operator::is, u"pdf"_s),
                        condition(Attribute::name, Operator::contains, u"invoice"_s)},
         .actions = {moveTo(receipts), tagAs(TagColor::green)}},
        {.name = u"Name and file receipts"_s,
         .conditions = {condition(Attribute::dobbinSays, Operator::is, u"a receipt or invoice"_s)},
         .actions = {{.type = ActionType::renameWithDobbin}, moveTo(receipts)}},
        {.name = u"Trash old installers"_s,
         .conditions = {condition(Attribute::extension, Operator::matchesRegex,
                                  u"^(dmg|pkg|iso)$"_s),
                        condition(Attribute::lastOpened, Operator::olderThanDays, u"30"_s)},
         .actions = {{.type = ActionType::trash}}},
        {.name = u"Big videos"_s,
         .conditions = {condition(Attribute::kind, Operator::is, u"video"_s),
                        condition(Attribute::size, Operator::greaterThan, u"500"_s)},
         .actions = {}},
    };
}

struct Watched {
    const char* path;
    int color;
    const char* symbol;
    TidyTiming timing;
    std::vector<Rule> rules = {};
};

std::vector<WatchedFolder> watchedFolders(const std::string& home, const std::string& receipts) {
    const std::vector<Rule> scans{
        {.name = u"File by month"_s,
         .conditions = {condition(Attribute::extension, Operator::is, u"pdf"_s)},
         .actions = {{.type = ActionType::sortIntoSubfolder, .sortBy = SortStrategy::byMonth}}}};
    const std::vector<Rule> desktop{
        {.name = u"Tag screenshots"_s,
         .conditions = {condition(Attribute::name, Operator::beginsWith, u"Screenshot"_s)},
         .actions = {tagAs(TagColor::orange)}}};
    const std::vector<Watched> table{
        {"Downloads", 0, "folder-download", TidyTiming::live, downloadRules(receipts)},
        {"Desktop", 6, "user-desktop", TidyTiming::hourly, desktop},
        {"Documents/Receipts", 2, "folder-documents", TidyTiming::manual},
        {"Scans", 3, "document-scan", TidyTiming::daily, scans},
        {"Team Drive", 1, "folder-cloud", TidyTiming::live},
        {"Camera Card", 7, "drive-removable-media", TidyTiming::live},
    };
    std::vector<WatchedFolder> folders;
    for (const Watched& row : table) {
        WatchedFolder folder{.path = QString::fromStdString(home + "/" + row.path),
                             .rules = row.rules,
                             .colorIndex = row.color,
                             .symbolName = QString::fromUtf8(row.symbol)};
        folder.setTiming(row.timing);
        folders.push_back(folder);
    }
    return folders;
}

void write(const std::string& path, const QByteArray& bytes) {
    std::ofstream(path, std::ios::binary).write(bytes.constData(), bytes.size());
}

} // namespace

std::string SampleHome::home() const {
    return root_.path().toStdString() + "/home";
}

std::string SampleHome::at(const std::string& name) const {
    return home() + "/" + name;
}

UserFolders SampleHome::folders() const {
    return {.home = home(),
            .data = at(".local/share/Quillon"),
            .runtime = root_.path().toStdString() + "/run",
            .config = at(".config/Quillon")};
}

SampleHome::SampleHome(Contents contents) {
    for (const char* folder :
         {"Downloads/Old Files", "Downloads/Screenshots", "Desktop", "Documents/Receipts",
          "Pictures", "Scans", "Team Drive", ".local/share/Quillon", ".local/share/Trash/files",
          ".config/Quillon", "../run"})
        std::filesystem::create_directories(at(folder));
    const bool isFull = contents == Contents::full;
    if (isFull)
        watched_ = watchedFolders(home(), at("Documents/Receipts"));
    const Timestamp now = std::chrono::system_clock::now();
    PersistedState state;
    state.folders = watched_;
    if (isFull) {
        state.logs = samplePast(home(), watched_, now);
        QJsonArray chat;
        for (const ChatTurn& turn : sampleChat(watched_, state.logs, now))
            chat.append(toJson(turn));
        write(StorePlaces(folders().data).chat(), QJsonDocument(chat).toJson());
    }
    write(StorePlaces(folders().data).state(), encodeState(state));

    makeDownloads(at("Downloads"));
    for (int i = 0; i < 9; ++i)
        makeFile(at("Desktop/Note " + std::to_string(i + 1) + ".txt"), 900, 3);
    for (int i = 0; i < 6; ++i)
        makeFile(at("Scans/Scan " + std::to_string(9 + i) + " Nov.pdf"), 700'000, 12 - i);
    if (isFull)
        std::filesystem::permissions(at("Team Drive"), std::filesystem::perms::none);
}

SampleHome::~SampleHome() {
    std::error_code ignored;
    std::filesystem::permissions(at("Team Drive"), std::filesystem::perms::owner_all, ignored);
}

QUuid SampleHome::folderID(const QString& name) const {
    for (const WatchedFolder& folder : watched_)
        if (folder.name() == name)
            return folder.id;
    return {};
}

QUuid SampleHome::ruleID(const QString& name) const {
    for (const WatchedFolder& folder : watched_)
        for (const Rule& rule : folder.rules)
            if (rule.name == name)
                return rule.id;
    return {};
}

} // namespace quillon::testing
