#include "model/WatchedFolder.h"

#include "model/JsonFields.h"
#include "model/JsonWriter.h"
#include "model/PathText.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

QString WatchedFolder::name() const {
    return lastPathComponent(path);
}

bool isCloudPath(const QString& path) {
    return path.contains("/Library/CloudStorage/"_L1) ||
           path.contains("/Library/Mobile Documents/"_L1);
}

QJsonObject toJson(const WatchedFolder& folder) {
    QJsonObject object{
        {"id"_L1, uuidText(folder.id)},
        {"path"_L1, folder.path},
        {"isWatching"_L1, folder.isWatching},
        {"rules"_L1, jsonList(folder.rules)},
        {"isRecursive"_L1, folder.isRecursive},
        {"onlyNewFiles"_L1, folder.onlyNewFiles},
        {"skipOnlineOnly"_L1, folder.skipOnlineOnly},
        {"schedule"_L1, rawValue(folder.schedule)},
    };
    if (folder.colorIndex)
        object.insert("colorIndex"_L1, *folder.colorIndex);
    insertIfPresent(object, "symbolName"_L1, folder.symbolName);
    return object;
}

Expected<WatchedFolder> folderFromJson(const JsonReader& json) {
    WatchedFolder folder;
    JsonFields fields(json);
    fields.optional("id"_L1, folder.id);
    fields.required("path"_L1, folder.path);
    fields.optional("isWatching"_L1, folder.isWatching);
    fields.optionalList("rules"_L1, folder.rules, ruleFromJson);
    fields.optional("colorIndex"_L1, folder.colorIndex);
    fields.optional("isRecursive"_L1, folder.isRecursive);
    fields.optional("onlyNewFiles"_L1, folder.onlyNewFiles);
    folder.skipOnlineOnly = isCloudPath(folder.path);
    fields.optional("skipOnlineOnly"_L1, folder.skipOnlineOnly);
    fields.optional("symbolName"_L1, folder.symbolName);
    fields.optional("schedule"_L1, folder.schedule);
    return fields.result(std::move(folder));
}

} // namespace quillon
