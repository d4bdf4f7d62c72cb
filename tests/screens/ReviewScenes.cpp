#include "SampleFiles.h"
#include "Scene.h"
#include "model/Uuid.h"
#include "service/Services.h"

#include <QTimer>

#include <filesystem>
#include <thread>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString idOf(Stage& stage, const QString& folder) {
    return uuidText(stage.home.folderID(folder));
}

/// Does something with the clean-up of Downloads once it has come so far.
void whenReady(CleanupModel& model, const QString& state,
               const std::function<void(CleanupModel&)>& then) {
    const auto connected = std::make_shared<QMetaObject::Connection>();
    *connected =
        QObject::connect(&model, &CleanupModel::changed, &model, [&model, state, then, connected] {
            if (model.state() != state)
                return;
            QObject::disconnect(*connected);
            then(model);
        });
}

Scene cleanup(const QString& name, const std::function<void(CleanupModel&)>& then = {}) {
    return {.name = name,
            .arrange =
                [then](Stage& stage) {
                    CleanupModel& model = *stage.model.cleanup();
                    model.open(idOf(stage, u"Downloads"_s));
                    model.setDays(1, 60);
                    if (then)
                        whenReady(model, u"review"_s, then);
                },
            .settling = 2500ms};
}

void tidyAll(CleanupModel& model) {
    QMetaObject::invokeMethod(
        &model, [&model] { model.tidy(); }, Qt::QueuedConnection);
}

bool showsResult(Stage& stage) {
    return stage.model.cleanup()->state() == u"result"_s;
}

Scene tidied(const QString& name, const std::function<void(CleanupModel&)>& then) {
    Scene scene = cleanup(name, then);
    scene.isReady = showsResult;
    return scene;
}

Scene cleanupOf(const QString& name, const QString& folder) {
    return {.name = name, .arrange = [folder](Stage& stage) {
                stage.model.cleanup()->open(idOf(stage, folder));
            }};
}

Scene preview(const QString& name, const QString& folder,
              const std::function<void(PreviewModel&)>& then = {}) {
    return {.name = name, .arrange = [folder, then](Stage& stage) {
                stage.store.setSelectedFolderID(stage.home.folderID(folder));
                PreviewModel& model = *stage.model.preview();
                model.open(idOf(stage, folder));
                if (then)
                    then(model);
            }};
}

/// Every thread has something else to do until after the picture.
Scene previewLooking() {
    Scene scene = preview(u"preview-looking"_s, u"Downloads"_s);
    scene.arrange = [open = scene.arrange](Stage& stage) {
        for (int i = 0; i < 16; ++i)
            stage.services.background().start([] { std::this_thread::sleep_for(1800ms); }, [] {});
        open(stage);
    };
    return scene;
}

/// Tidied with one file that can't go where it should: a file stands in a folder's place.
Scene cleanupWithFailure() {
    return {.name = u"cleanup-failure"_s,
            .arrange =
                [](Stage& stage) {
                    std::filesystem::remove_all(stage.home.at("Downloads/Screenshots"));
                    makeFile(stage.home.at("Downloads/Screenshots"), 10, 3);
                    CleanupModel& model = *stage.model.cleanup();
                    model.open(idOf(stage, u"Downloads"_s));
                    whenReady(model, u"review"_s, tidyAll);
                },
            .settling = 2500ms};
}

void makeMany(const SampleHome& home) {
    for (int i = 0; i < 20'000; ++i)
        makeFile(home.at("Downloads/Old file " + std::to_string(i) + ".txt"), i, 60 + i % 300);
}

Scene manyFiles() {
    Scene scene = cleanupOf(u"cleanup-many"_s, u"Downloads"_s);
    scene.arrange = [open = scene.arrange](Stage& stage) {
        makeMany(stage.home);
        open(stage);
    };
    scene.settling = 4s;
    return scene;
}

/// So many files that the picture is taken before the last has been moved.
Scene tidyingMany() {
    Scene scene = manyFiles();
    scene.name = u"cleanup-tidying"_s;
    scene.arrange = [open = scene.arrange](Stage& stage) {
        open(stage);
        whenReady(*stage.model.cleanup(), u"review"_s, tidyAll);
    };
    scene.settling = 100ms;
    scene.isReady = [](Stage& stage) {
        const CleanupModel& model = *stage.model.cleanup();
        return model.state() == u"tidying"_s && model.progress() > 0.1;
    };
    return scene;
}

/// Looks again and again, so that it is looking when the picture is taken.
Scene looking() {
    Scene scene = cleanupOf(u"cleanup-looking"_s, u"Downloads"_s);
    scene.arrange = [open = scene.arrange](Stage& stage) {
        open(stage);
        auto* const again = new QTimer(stage.model.cleanup());
        QObject::connect(again, &QTimer::timeout, stage.model.cleanup(), &CleanupModel::look);
        again->start(1ms);
    };
    return scene;
}

} // namespace

std::vector<Scene> reviewScenes() {
    return {
        cleanup(u"cleanup"_s,
                [](CleanupModel& model) {
                    QMetaObject::invokeMethod(
                        &model, [&model] { model.tickRow(6, false); }, Qt::QueuedConnection);
                }),
        tidied(u"cleanup-result"_s, tidyAll),
        tidied(u"cleanup-kept"_s,
               [](CleanupModel& model) {
                   tidyAll(model);
                   whenReady(model, u"result"_s, [](CleanupModel& done) { done.keep(); });
               }),
        cleanup(u"cleanup-filter"_s,
                [](CleanupModel& model) { model.setFilterText(u"no such file"_s); }),
        tidyingMany(),
        cleanupWithFailure(),
        looking(),
        manyFiles(),
        cleanupOf(u"cleanup-none"_s, u"Receipts"_s),
        cleanupOf(u"cleanup-denied"_s, u"Team Drive"_s),
        cleanupOf(u"cleanup-desktop"_s, u"Desktop"_s),
        preview(u"preview"_s, u"Downloads"_s),
        preview(u"preview-left"_s, u"Downloads"_s, [](PreviewModel& model) { model.setFate(1); }),
        preview(u"preview-waiting"_s, u"Downloads"_s,
                [](PreviewModel& model) { model.setFate(2); }),
        preview(u"preview-filter"_s, u"Downloads"_s,
                [](PreviewModel& model) { model.setFilterText(u"no such file"_s); }),
        previewLooking(),
        preview(u"preview-empty"_s, u"Desktop"_s),
        preview(u"preview-denied"_s, u"Team Drive"_s),
        {.name = u"presets"_s,
         .arrange = [](Stage& stage) { stage.model.presets()->open(idOf(stage, u"Desktop"_s)); }},
        {.name = u"suggestions"_s,
         .arrange =
             [](Stage& stage) {
                 stage.store.setSelectedFolderID(stage.home.folderID(u"Receipts"_s));
                 for (int i = 0; i < 18; ++i)
                     makeFile(stage.home.at("Documents/Receipts/Screenshot 2026-10-" +
                                            std::to_string(10 + i) + ".png"),
                              4000, 20 + i);
                 for (int i = 0; i < 9; ++i)
                     makeFile(
                         stage.home.at("Documents/Receipts/setup-" + std::to_string(i) + ".dmg"),
                         9'000'000, 70 + i);
             },
         .settling = 2500ms},
    };
}

} // namespace quillon::testing
