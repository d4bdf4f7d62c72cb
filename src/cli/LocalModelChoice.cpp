#include "cli/LocalModelChoice.h"

#include "assistant/backends/AIManager.h"
#include "service/LoopTask.h"
#include "store/SettingsTable.h"

namespace quillon {

std::optional<ModelLibrary> localModels(const Console& console, Services& services,
                                        const std::optional<QString>& chosen) {
    const QString host = assistantSetting(services, u"ai.localHost");
    const QString model = chosen.value_or(assistantSetting(services, u"ai.localModel"));
    auto library = resultOnLoop<ModelLibrary>(
        services, [host, model] { return lookAtModels(host, model); }, console.mayContinue);
    if (!library)
        return std::nullopt;
    services.onLoop([&] {
        library->state =
            whileDownloading(std::move(library->state), services.assistant().download());
    });
    return library;
}

QString assistantSetting(Services& services, QStringView key) {
    const Setting* const setting = findSetting(key);
    return setting ? settingText(services.settings(), *setting) : QString();
}

} // namespace quillon
