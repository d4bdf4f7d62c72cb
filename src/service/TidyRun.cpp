#include "service/TidyRun.h"

namespace quillon {

WatchedFolder folderFor(const FolderRequest& request) {
    WatchedFolder folder;
    folder.id = QUuid();
    folder.path = QString::fromStdString(request.path);
    folder.isRecursive = request.isRecursive;
    folder.skipOnlineOnly = request.skipOnlineOnly;
    return folder;
}

Expected<TidyReport> tidyOnce(Services& services, const FolderRequest& request,
                              const ReadyFiles& ready, const std::vector<Rule>& rules,
                              const Progress& progress) {
    auto store = services.openStore();
    if (!store)
        return std::unexpected(store.error());

    TidyReport report{.run = {}, .batchID = QUuid::createUuid()};
    report.warnings = (*store)->warnings();
    report.run = services.engine(request.settings)
                     .execute(ready, rules, folderFor(request), {}, report.batchID,
                              (*store)->journal(), progress);
    const std::size_t count = report.run.entries.size();
    report.forgotten = count - std::min(count, logCap);
    (*store)->state().addLogs(report.run.entries);
    if (auto saved = (*store)->save(); !saved)
        report.unsaved = saved.error();
    return report;
}

} // namespace quillon
