#include "assistant/SuggestionCandidates.h"

#include "assistant/RuleSuggestions.h"
#include "engine/FileFacts.h"
#include "engine/KindClassifier.h"
#include "model/FileKind.h"
#include "model/PathText.h"
#include "platform/FileNames.h"
#include "platform/Provenance.h"

#include <QHash>
#include <QUrl>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t mostExtensions = 12;
constexpr std::size_t mostHosts = 4;
// Origins are read file by file: of these to find the hosts, and of all to count what one rule
// takes.
constexpr std::size_t mostOriginsRead = 2000;
constexpr std::size_t mostFilesWithOrigins = 20'000;
constexpr qsizetype longestHost = 100;
constexpr std::size_t longestExtension = 10;

// What the screenshot tools of the usual desktops and phones begin a name with, and in a few
// languages. Whole words: "Screenshotting" is none.
constexpr QStringView screenshotNames =
    u"^(Screenshot|Screen Shot|CleanShot|SCR-|Bildschirmfoto|Capture d.écran|"
    "Captura de (pantalla|tela|ecrã)|Schermata|Schermafdruk|Skärmbild|Skjermbilde|Skærmbillede|"
    "Zrzut ekranu|Снимок экрана|スクリーンショット|屏幕截图)(?!\\p{L})";

// Whole words: "Berechnung" is no "Rechnung".
constexpr QStringView invoiceNames =
    u"(?<!\\p{L})((invoice|receipt|facture|factura|fattura|recibo)s?|(rechnung|quittung)(en)?)"
    "(?!\\p{L})|請求書|領収書|发票";

// Not those that are often the program itself, such as an AppImage.
constexpr QStringView installerExtensions = u"^(dmg|pkg|iso|deb|rpm|msi|flatpakref|snap)$";
constexpr int installerDays = 30;

constexpr QStringView archiveExtensions = u"^(zip|rar|7z|tar|gz|tgz|bz2|tbz2?|xz|txz|zst|tzst)$";

constexpr int largeMegabytes = 100;
constexpr int largeDays = 180;

Condition pattern(ConditionAttribute attribute, QStringView value) {
    return {.attribute = attribute, .op = MatchOperator::matchesRegex, .value = value.toString()};
}

Condition ofKind(MatchOperator op, FileKind kind) {
    return {.attribute = ConditionAttribute::kind, .op = op, .value = rawValue(kind)};
}

Condition olderThan(int days, ConditionAttribute date) {
    return {.attribute = date, .op = MatchOperator::olderThanDays, .value = QString::number(days)};
}

Rule moveRule(const QString& name, std::vector<Condition> conditions, const WatchedFolder& folder,
              const QString& subfolder) {
    return {.name = name,
            .conditions = std::move(conditions),
            .actions = {
                {.type = ActionType::move, .destination = appendedPath(folder.path, subfolder)}}};
}

RuleSuggestion candidate(SuggestionTopic topic, Rule rule, QStringList subjects = {}) {
    const std::uint64_t key = suggestionKey(rule);
    return {
        .topic = topic, .subjects = std::move(subjects), .rule = std::move(rule), .keys = {key}};
}

void addKnown(std::vector<RuleSuggestion>& candidates, const WatchedFolder& folder) {
    using enum SuggestionTopic;
    using Attribute = ConditionAttribute;
    candidates.push_back(
        candidate(screenshots, moveRule(u"File screenshots"_s,
                                        {pattern(Attribute::name, screenshotNames),
                                         ofKind(MatchOperator::is, FileKind::image)},
                                        folder, u"Screenshots"_s)));
    candidates.push_back(
        candidate(invoices, moveRule(u"File invoices and receipts"_s,
                                     {pattern(Attribute::name, invoiceNames),
                                      ofKind(MatchOperator::isNot, FileKind::folder)},
                                     folder, u"Invoices"_s)));
    // Where the system doesn't note when a file is opened, only the other date spares new ones.
    candidates.push_back(candidate(
        installers, Rule{.name = u"Trash old installers"_s,
                         .conditions = {pattern(Attribute::extension, installerExtensions),
                                        olderThan(installerDays, Attribute::lastOpened),
                                        olderThan(installerDays, Attribute::dateAdded)},
                         .actions = {{.type = ActionType::trash}}}));
    candidates.push_back(candidate(
        archives, moveRule(u"File archives"_s, {pattern(Attribute::extension, archiveExtensions)},
                           folder, u"Archives"_s)));
    candidates.push_back(
        candidate(largeFiles, moveRule(u"Set aside large old files"_s,
                                       {{.attribute = Attribute::size,
                                         .op = MatchOperator::greaterThan,
                                         .value = QString::number(largeMegabytes),
                                         .unit = SizeUnit::mb},
                                        olderThan(largeDays, Attribute::lastOpened),
                                        ofKind(MatchOperator::isNot, FileKind::archive)},
                                       folder, u"Large Old Files"_s)));
}

/// How often each text was met.
class Tally {
public:
    void add(const QString& text) { ++counts_[text]; }

    /// The most common first, in alphabetical order where they are equally so.
    [[nodiscard]] QStringList mostCommon(std::size_t most) const {
        std::vector<std::pair<std::size_t, QString>> found;
        for (const auto& [text, count] : counts_.asKeyValueRange())
            if (count >= fewestFiles)
                found.emplace_back(count, text);
        std::ranges::sort(found, [](const auto& one, const auto& other) {
            return one.first != other.first ? one.first > other.first : one.second < other.second;
        });
        QStringList texts;
        for (std::size_t i = 0; i < std::min(most, found.size()); ++i)
            texts.append(found[i].second);
        return texts;
    }

private:
    QHash<QString, std::size_t> counts_;
};

bool isPlainExtension(std::string_view extension) {
    const auto isWordLike = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    };
    return !extension.empty() && extension.size() <= longestExtension &&
           std::ranges::all_of(extension, isWordLike);
}

/// Programs and their sources belong where they are, and nobody looks for a folder full of what is
/// of no known kind.
bool isSortedByExtension(FileKind kind) {
    using enum FileKind;
    return kind == image || kind == video || kind == audio || kind == document || kind == pdf;
}

void addExtensions(std::vector<RuleSuggestion>& candidates, const FolderView& view) {
    KindClassifier kinds(view.platform().contentTypes);
    Tally tally;
    for (const ListedFile* file : view.files()) {
        const std::string_view name = lastComponent(file->path);
        const std::string_view extension = splitName(name).extension;
        if (file->status.type == FileType::regular && isPlainExtension(extension) &&
            isSortedByExtension(kinds.kindOf(QString::fromUtf8(name), file->status.type)))
            tally.add(QString::fromUtf8(extension).toLower());
    }
    for (const QString& extension : tally.mostCommon(mostExtensions))
        candidates.push_back(
            candidate(SuggestionTopic::extension,
                      extensionRule(view.folder(), {extension}, extension.toUpper()), {extension}));
}

/// "github.com", with the port where the address has one; empty for what isn't on the web.
QString hostOf(const QString& address) {
    const QUrl url(address);
    const QString host = url.host(QUrl::FullyEncoded).toLower();
    if (!url.scheme().startsWith("http"_L1) || !host.contains(u'.') || host.size() > longestHost)
        return {};
    return url.port() < 0 ? host : host + u':' + QString::number(url.port());
}

void addHosts(std::vector<RuleSuggestion>& candidates, const FolderView& view) {
    if (view.files().size() > mostFilesWithOrigins)
        return;
    std::vector<const ListedFile*> newest;
    for (const ListedFile* file : view.files())
        if (file->status.type == FileType::regular)
            newest.push_back(file);
    if (newest.size() > mostOriginsRead) {
        std::ranges::nth_element(newest, newest.begin() + mostOriginsRead, std::greater{},
                                 [](const ListedFile* file) { return file->status.modified; });
        newest.resize(mostOriginsRead);
    }
    Tally tally;
    const std::string folder = view.folder().path.toStdString();
    for (const ListedFile* file : newest) {
        // The page that led to the file says more to people than the server that had it.
        const QStringList origins =
            view.platform().provenance.whereFrom(joinPath(folder, file->path));
        if (const QString host = origins.isEmpty() ? QString() : hostOf(origins.last());
            !host.isEmpty())
            tally.add(host);
    }
    for (const QString& host : tally.mostCommon(mostHosts)) {
        const QString name = host.startsWith("www."_L1) ? host.sliced(4) : host;
        candidates.push_back(
            candidate(SuggestionTopic::host,
                      hostRule(view.folder(), host, QString(name).replace(u':', u'-')), {name}));
    }
}

} // namespace

Rule hostRule(const WatchedFolder& folder, const QString& host, const QString& subfolder) {
    return moveRule(u"File downloads from "_s + subfolder,
                    {{.attribute = ConditionAttribute::whereFrom,
                      .op = MatchOperator::contains,
                      .value = u"://"_s + host + u'/'}},
                    folder, subfolder);
}

Rule extensionRule(const WatchedFolder& folder, const QStringList& extensions,
                   const QString& subfolder) {
    const bool isOne = extensions.size() == 1;
    return moveRule(
        isOne ? u"File %1 files"_s.arg(extensions.first().toUpper()) : u"File "_s + subfolder,
        {{.attribute = ConditionAttribute::extension,
          .op = isOne ? MatchOperator::is : MatchOperator::matchesRegex,
          .value = isOne ? extensions.first() : u"^(%1)$"_s.arg(extensions.join(u'|'))}},
        folder, subfolder);
}

std::vector<RuleSuggestion> suggestionCandidates(const FolderView& view) {
    std::vector<RuleSuggestion> candidates;
    addKnown(candidates, view.folder());
    addHosts(candidates, view);
    addExtensions(candidates, view);
    return candidates;
}

} // namespace quillon
