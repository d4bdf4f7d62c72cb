#include "SampleHome.h"

#include "store/PersistedState.h"
#include "store/StorePlaces.h"

#include <filesystem>
#include <fstream>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

namespace {

Condition condition(ConditionAttribute attribute, MatchOperator op, const QString& value) {
    Condition made;
    made.attribute = attribute;
    made.op = op;
    made.value = value;
    return made;
}

RuleAction moveTo(const std::string& path) {
    RuleAction made;
    made.type = ActionType::move;
    made.destination = QString::fromStdString(path);
    return made;
}

} // namespace

std::string SampleHome::at(const std::string& name) const {
    return root_.path().toStdString() + "/" + name;
}

UserFolders SampleHome::folders() const {
    return {.home = at("home"),
            .data = at("home/.local/share/Quillon"),
            .runtime = at("run"),
            .config = at("home/.config/Quillon")};
}

SampleHome::SampleHome() {
    for (const char* folder : {"home/Downloads", "home/Desktop", "home/Documents/Receipts",
                               "home/Scans", "home/.local/share/Quillon", "run"})
        std::filesystem::create_directories(at(folder));
    for (int i = 0; i < 120; ++i)
        std::ofstream(at("home/Downloads/paper-" + std::to_string(i) + ".txt")) << i;

    WatchedFolder downloads;
    downloads.path = QString::fromStdString(at("home/Downloads"));
    Rule invoices;
    invoices.name = u"File invoices"_s;
    invoices.conditions = {condition(ConditionAttribute::extension, MatchOperator::is, u"pdf"_s),
                           condition(ConditionAttribute::name, MatchOperator::contains, u"invoice"_s)};
    invoices.actions = {moveTo(at("home/Documents/Receipts"))};
    downloads.rules = {invoices};
    WatchedFolder desktop;
    desktop.path = QString::fromStdString(at("home/Desktop"));
    desktop.setTiming(TidyTiming::hourly);

    PersistedState state;
    state.folders = {downloads, desktop};
    const QByteArray bytes = encodeState(state);
    std::ofstream(StorePlaces(folders().data).state(), std::ios::binary)
        .write(bytes.constData(), bytes.size());
}

} // namespace quillon::testing
