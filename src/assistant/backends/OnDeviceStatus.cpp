#include "assistant/backends/OnDeviceStatus.h"

#include "model/RawValue.h"

#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Row {
    OnDeviceStatus::Kind kind;
    std::u16string_view message;       ///< %1 is the model's name, %2 the per cent
    std::u16string_view inWindow = {}; ///< where there is something else to do
};

using enum OnDeviceStatus::Kind;

constexpr auto systemRows = std::to_array<Row>({
    {unsupported, u"Dobbin needs macOS 26 with Apple Intelligence."},
    {available, u""},
    {unsupported, u"This Mac can't run Apple Intelligence, so Dobbin isn't available."},
    {needsSetup, u"Turn on Apple Intelligence in System Settings to use Dobbin."},
    {needsSetup, u"Apple Intelligence is still downloading. Dobbin will be ready soon."},
    {needsSetup, u"Apple Intelligence isn't available right now."},
});
static_assert(systemRows.size() == std::size_t(SystemModelState::other) + 1);

constexpr auto localRows = std::to_array<Row>({
    {needsSetup, u"%1"},
    {needsSetup, u"Dobbin needs a local model. Install Ollama, then run “quillon model pull”.",
     u"Dobbin needs a local model. Install Ollama, then download one in Settings → Dobbin."},
    {needsSetup, u"Dobbin needs a local model. Run “quillon model pull” to download one.",
     u"Dobbin needs a local model. Download one in Settings → Dobbin."},
    {needsSetup,
     u"The local model “%1” isn't installed. Run “quillon model pull %1” to download "
     u"it, or choose another with “quillon model use”.",
     u"The local model “%1” isn't installed. Download it in Settings → Dobbin."},
    {needsSetup,
     u"The model “%1” doesn't run on this computer, so Dobbin doesn't use it. Choose "
     u"another with “quillon model use”.",
     u"The model “%1” doesn't run on this computer, so Dobbin doesn't use it. Choose another in a "
     u"terminal with “quillon model use”, or switch on Claude in Settings → Dobbin → Advanced."},
    {needsSetup,
     u"The local model “%1” isn't made for answering. Choose another with “quillon "
     u"model use”.",
     u"The local model “%1” isn't made for answering. Choose another in a terminal with “quillon "
     u"model use”, or switch on Claude in Settings → Dobbin → Advanced."},
    {needsSetup, u"The local model is still downloading (%2%). Dobbin will be ready soon."},
    {needsSetup, u"The local model is loading. Dobbin will be ready soon."},
    {needsSetup, u"The local model isn't available right now."},
    {available, u""},
});
static_assert(localRows.size() == std::size_t(LocalModelState::Kind::ready) + 1);

} // namespace

OnDeviceStatus statusOf(SystemModelState state) {
    const Row& row = systemRows[static_cast<std::size_t>(state)];
    return {.kind = row.kind, .message = toQString(row.message)};
}

OnDeviceStatus statusOf(const LocalModelState& state, SaidIn where) {
    const Row& row = localRows[static_cast<std::size_t>(state.kind)];
    const bool isInWindow = where == SaidIn::window && !row.inWindow.empty();
    QString message = toQString(isInWindow ? row.inWindow : row.message);
    message.replace(u"%2"_s, QString::number(state.percent)).replace(u"%1"_s, state.name);
    return {.kind = row.kind, .message = message};
}

LocalModelState whileDownloading(LocalModelState state, std::optional<int> percent) {
    using Kind = LocalModelState::Kind;
    if (percent && (state.kind == Kind::noModel || state.kind == Kind::notInstalled)) {
        state.kind = Kind::downloading;
        state.percent = *percent;
    }
    return state;
}

} // namespace quillon
