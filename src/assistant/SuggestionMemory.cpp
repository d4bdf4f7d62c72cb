#include "assistant/SuggestionMemory.h"

#include "assistant/KeyText.h"
#include "model/JsonDate.h"
#include "model/JsonFields.h"
#include "model/JsonText.h"
#include "model/JsonWriter.h"
#include "store/UnreadableFile.h"

#include <QJsonDocument>

#include <algorithm>
#include <thread>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::literals;

namespace {

constexpr std::uint64_t largestFile = 16ULL << 20;
constexpr std::size_t mostFolders = 50;
constexpr std::size_t mostDismissed = 200;

constexpr int lockAttempts = 100;
constexpr std::chrono::milliseconds betweenAttempts{10};

QJsonObject folderToJson(const RememberedSuggestions& folder) {
    QJsonObject json{{"path"_L1, folder.path}};
    if (!folder.dismissed.empty())
        json.insert("dismissed"_L1, keysToJson(folder.dismissed));
    if (!folder.shown.empty())
        json.insert("shown"_L1, jsonList(folder.shown));
    if (folder.shownAt)
        json.insert("shownAt"_L1, jsonDate(*folder.shownAt));
    if (!folder.read.empty())
        json.insert("read"_L1, jsonList(folder.read));
    if (folder.readAt)
        json.insert("readAt"_L1, jsonDate(*folder.readAt));
    return json;
}

Expected<RememberedSuggestions> folderFromJson(const JsonReader& json) {
    RememberedSuggestions folder;
    JsonFields fields(json);
    fields.required("path"_L1, folder.path);
    fields.optionalList("dismissed"_L1, folder.dismissed, keyFromJson);
    fields.optionalList("shown"_L1, folder.shown, suggestionFromJson);
    fields.optional("shownAt"_L1, folder.shownAt);
    fields.optionalList("read"_L1, folder.read, suggestionFromJson);
    fields.optional("readAt"_L1, folder.readAt);
    return fields.result(std::move(folder));
}

Expected<std::unique_ptr<FileLock>> lockOf(Storage& storage, const std::string& path) {
    auto lock = storage.tryLock(path);
    for (int i = 1; i < lockAttempts && !lock && lock.error().kind == ErrorKind::alreadyExists;
         ++i) {
        std::this_thread::sleep_for(betweenAttempts);
        lock = storage.tryLock(path);
    }
    return lock;
}

} // namespace

Expected<SuggestionMemory::Folders> SuggestionMemory::read() const {
    const Expected<QByteArray> bytes = storage_.readWhole(places_.suggestions(), largestFile);
    if (!bytes && bytes.error().kind == ErrorKind::notFound)
        return Folders{};
    const Expected<QJsonValue> root = bytes ? parseJson(*bytes) : std::unexpected(bytes.error());
    if (!root)
        return std::unexpected(root.error());
    Folders folders;
    const JsonReader json(*root);
    JsonFields fields(json);
    fields.requiredList("folders"_L1, folders, folderFromJson);
    return fields.result(std::move(folders));
}

QString SuggestionMemory::resolved(const QString& path) const {
    return QString::fromStdString(fileSystem_.resolved(path.toStdString()));
}

Expected<RememberedSuggestions> SuggestionMemory::of(const QString& path) const {
    const auto folders = read();
    if (!folders)
        return std::unexpected(folders.error());
    const QString place = resolved(path);
    const auto found = std::ranges::find(*folders, place, &RememberedSuggestions::path);
    return found == folders->end() ? RememberedSuggestions{.path = place} : *found;
}

SuggestionMemory::Kept SuggestionMemory::noteShown(const QString& path,
                                                   std::vector<RuleSuggestion> shown, Timestamp now,
                                                   SuggestionReader to) {
    return change(path, now, [&](RememberedSuggestions& folder) {
        const bool isRead = to == SuggestionReader::program;
        (isRead ? folder.read : folder.shown) = std::move(shown);
        (isRead ? folder.readAt : folder.shownAt) = now;
    });
}

SuggestionMemory::Kept SuggestionMemory::dismiss(const QString& path,
                                                 const std::vector<std::uint64_t>& keys,
                                                 Timestamp now) {
    return change(path, now, [&](RememberedSuggestions& folder) {
        for (const std::uint64_t key : keys)
            std::erase(folder.dismissed, key);
        folder.dismissed.insert(folder.dismissed.begin(), keys.begin(), keys.end());
        folder.dismissed.resize(std::min(folder.dismissed.size(), mostDismissed));
    });
}

SuggestionMemory::Kept
SuggestionMemory::change(const QString& path, Timestamp now,
                         const std::function<void(RememberedSuggestions&)>& edit) {
    if (auto made = fileSystem_.makeFolders(places_.folder); !made)
        return std::unexpected(made.error());
    const auto lock = lockOf(storage_, places_.suggestionsLock());
    if (!lock)
        return std::unexpected(lock.error());

    std::optional<QString> warning;
    Expected<Folders> folders = read();
    if (!folders) {
        const auto kept = keepUnreadable(storage_, places_.suggestions(), folders.error(), now);
        if (!kept)
            return std::unexpected(kept.error());
        warning = *kept + u", and what was dismissed is suggested again"_s;
        folders = Folders{};
    }
    const QString place = resolved(path);
    auto found = std::ranges::find(*folders, place, &RememberedSuggestions::path);
    if (found == folders->end())
        found = folders->insert(folders->end(), {.path = place});
    edit(*found);
    std::rotate(folders->begin(), found, found + 1);
    if (folders->size() > mostFolders)
        folders->resize(mostFolders);
    QJsonArray list;
    for (const RememberedSuggestions& each : *folders)
        list.append(folderToJson(each));
    const QJsonObject root{{"folders"_L1, list}};
    if (auto written = storage_.writeDurably(places_.suggestions(),
                                             QJsonDocument(root).toJson(QJsonDocument::Compact));
        !written)
        return std::unexpected(written.error());
    return warning;
}

} // namespace quillon
