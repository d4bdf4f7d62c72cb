#include "cli/LocalModelChoice.h"

#include "assistant/backends/AIManager.h"
#include "service/LoopTask.h"
#include "store/SettingsTable.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

std::optional<ModelLibrary> localModels(const Console& console, Services& services,
                                        const std::optional<QString>& chosen) {
    const QString host = assistantSetting(services, u"ai.localHost");
    const QString model = chosen.value_or(assistantSetting(services, u"ai.localModel"));
    auto library = resultOnLoop<ModelLibrary>(
        services, [host, model] { return lookAtModels(host, model); }, console.mayContinue);
    if (!library)
        return std::nullopt;
    using Kind = LocalModelState::Kind;
    std::optional<int> download;
    services.onLoop([&] { download = services.assistant().download(); });
    if (download &&
        (library->state.kind == Kind::noModel || library->state.kind == Kind::notInstalled))
        library->state = {
            .kind = Kind::downloading, .name = library->state.name, .percent = *download};
    return library;
}

QString assistantSetting(Services& services, QStringView key) {
    const Setting* const setting = findSetting(key);
    return setting ? settingText(services.settings(), *setting) : QString();
}

QString sizeText(qint64 bytes) {
    constexpr double gigabyte = 1e9;
    constexpr double megabyte = 1e6;
    return double(bytes) >= gigabyte ? u"%1 GB"_s.arg(double(bytes) / gigabyte, 0, 'f', 1)
                                     : u"%1 MB"_s.arg(double(bytes) / megabyte, 0, 'f', 0);
}

} // namespace quillon
