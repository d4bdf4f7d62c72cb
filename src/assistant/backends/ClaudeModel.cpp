#include "assistant/backends/ClaudeModel.h"

namespace quillon {

namespace {

constexpr auto labels = std::to_array<std::u16string_view>({
    u"Claude Sonnet 5.5",
    u"Claude Haiku 5.5",
    u"Claude Opus 5.5",
});
static_assert(labels.size() == rawValues<ClaudeModel>.size());

} // namespace

QString label(ClaudeModel model) {
    return toQString(labels[static_cast<std::size_t>(model)]);
}

} // namespace quillon
