#include "assistant/ByteCount.h"
#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/LocalModelChoice.h"
#include "cli/Verbs.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = LocalModelState::Kind;

QString stateName(Kind kind) {
    switch (kind) {
    case Kind::hostRefused:
        return u"hostRefused"_s;
    case Kind::serverAbsent:
        return u"serverAbsent"_s;
    case Kind::noModel:
        return u"noModel"_s;
    case Kind::notInstalled:
        return u"notInstalled"_s;
    case Kind::elsewhere:
        return u"elsewhere"_s;
    case Kind::cannotAnswer:
        return u"cannotAnswer"_s;
    case Kind::downloading:
        return u"downloading"_s;
    case Kind::loading:
        return u"loading"_s;
    case Kind::other:
        return u"other"_s;
    case Kind::ready:
        return u"ready"_s;
    }
    return {};
}

void printJson(const ModelLibrary& library, std::ostream& out) {
    JsonStream json;
    json.beginObject().key("state").text(stateName(library.state.kind));
    if (library.state.kind != Kind::ready)
        json.key("message").text(statusOf(library.state).message);
    if (!library.state.name.isEmpty() && library.state.kind != Kind::hostRefused)
        json.key("model").text(library.state.name);
    if (library.state.kind == Kind::downloading)
        json.key("percent").integer(library.state.percent);
    json.key("models").beginList();
    for (const LocalModel& model : library.installed) {
        json.beginObject().key("name").text(model.name);
        json.key("bytes").integer(model.bytes);
        json.key("isLocal").truth(!model.isElsewhere).endObject();
    }
    json.endList().endObject();
    finish(json, out);
}

void printText(const ModelLibrary& library, const Console& console) {
    LineBuffer lines(console.out, console.colored);
    const bool isReady = library.state.kind == Kind::ready;
    lines
        .add(isReady ? u"The local model is ready: %1"_s.arg(library.state.name)
                     : statusOf(library.state).message)
        .endLine();
    ColumnWidth names;
    for (const LocalModel& model : library.installed)
        names.fit(model.name);
    for (const LocalModel& model : library.installed) {
        lines.add(u"  "_s)
            .add(model.name, LineBuffer::Style::strong, names.columns())
            .add(u"  "_s)
            .add(byteCount(std::uint64_t(std::max<qint64>(model.bytes, 0))),
                 LineBuffer::Style::faint);
        if (model.isElsewhere)
            lines.add(u"  runs on another machine, and is not used"_s, LineBuffer::Style::bad);
        lines.endLine();
    }
}

} // namespace

ExitCode modelStatusCommand(const PlainOptions& options, const Console& console,
                            Services& services) {
    const auto library = localModels(console, services);
    if (!library)
        return ExitCode::someFailed;
    if (options.json)
        printJson(*library, console.out);
    else
        printText(*library, console);
    return ExitCode::done;
}

} // namespace quillon
