#include "cli/NamedFolder.h"
#include "cli/StoreFailure.h"
#include "cli/Verbs.h"
#include "platform/FileNames.h"
#include "store/Diagnostics.h"
#include "store/Sentences.h"

#include <QSysInfo>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Where the report goes: a folder gets it under its usual name. What is there already stays.
Chosen<std::string> placeFor(const std::string& given, const Console& console,
                             const FileSystem& fileSystem) {
    std::string path = absolutePath(given, console);
    auto status = fileSystem.status(path);
    if (status && status->type == FileType::directory) {
        path = joinPath(path, diagnosticsFileName.toUtf8().toStdString());
        status = fileSystem.status(path);
    }
    if (status)
        return refusal(ExitCode::someFailed,
                       u"%1 is there already, and nothing is overwritten; give another name"_s.arg(
                           pathText(path)));
    return path;
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
    const auto path = placeFor(options.output, console, services.platform().fileSystem);
    if (!path)
        return sayRefusal(path.error(), console);
    if (const auto written = services.storage().writeDurably(*path, bytes); !written) {
        console.say(u"The report can't be written to %1: %2"_s.arg(pathText(*path),
                                                                   written.error().message));
        return ExitCode::someFailed;
    }
    console.say(u"The report is in %1"_s.arg(pathText(*path)));
    return ExitCode::done;
}

} // namespace quillon
