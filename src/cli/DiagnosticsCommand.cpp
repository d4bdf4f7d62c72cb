#include "cli/NamedFolder.h"
#include "cli/NewFile.h"
#include "cli/StoreFailure.h"
#include "cli/Verbs.h"
#include "platform/FileNames.h"
#include "store/Diagnostics.h"
#include "store/Sentences.h"

#include <QSysInfo>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Where the report goes: a folder gets it under its usual name.
std::string placeFor(const std::string& given, const Console& console,
                     const FileSystem& fileSystem) {
    std::string path = absolutePath(given, console);
    const auto status = fileSystem.status(path);
    const bool isFolder = status && status->type == FileType::directory;
    return isFolder ? joinPath(path, diagnosticsFileName.toUtf8().toStdString()) : path;
}

} // namespace

ExitCode diagnosticsCommand(const DiagnosticsOptions& options, const Console& console,
                            Services& services) {
    const auto view = services.viewStore();
    if (!view)
        return sayStoreFailure(view.error(), console);
    const QString report = diagnosticsReport(view->state.folders, view->access, view->state.logs,
                                             view->warnings + view->watchWarnings,
                                             {.appVersion = QStringLiteral(QUILLON_VERSION),
                                              .name = systemName.toString(),
                                              .version = QSysInfo::prettyProductName(),
                                              .now = services.platform().clock.now()});
    const QByteArray bytes = report.toUtf8() + '\n';
    if (options.output.empty()) {
        console.out.write(bytes.constData(), bytes.size());
        return ExitCode::done;
    }
    const std::string path = placeFor(options.output, console, services.platform().fileSystem);
    const auto written = writeNewFile(path, bytes, u"The report"_s, pathText(path), services);
    if (!written)
        return sayRefusal(written.error(), console);
    console.say(u"The report is in %1"_s.arg(pathText(path)));
    return ExitCode::done;
}

} // namespace quillon
