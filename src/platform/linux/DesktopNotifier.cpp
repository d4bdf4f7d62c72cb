#include "platform/linux/DesktopNotifier.h"

#include "platform/linux/Mailbox.h"
#include "platform/linux/NotificationBus.h"
#include "platform/linux/SessionBus.h"

#include <QThread>

#include <unordered_map>

namespace quillon {
namespace {

// How long leaving waits for a thread that may itself be waiting for a bus without an answer; then
// it is left behind.
constexpr unsigned long endPatienceMs = 200;

} // namespace

struct DesktopNotifier::State {
    QString address;
    QObject receiver;
    std::shared_ptr<Mailbox> mailbox = std::make_shared<Mailbox>(&receiver);
    std::unordered_map<std::uint64_t, Notification> shown;
    std::function<void(const std::string&)> clicked;
    std::uint64_t lastToken = 0;
    QThread* thread = nullptr;
    NotificationBus* bus = nullptr; ///< on the thread, and gone with it

    explicit State(QString busAddress) : address(std::move(busAddress)) {}
    ~State() {
        mailbox->close();
        if (!thread)
            return;
        thread->quit();
        if (thread->wait(endPatienceMs)) {
            delete thread;
            return;
        }
        QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
        if (thread->isFinished()) // before we connected
            thread->deleteLater();
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    void start() {
        thread = new QThread;
        bus = new NotificationBus(address, [this, box = mailbox](std::uint64_t token,
                                                                 NotificationBus::End end,
                                                                 const QString& activation) {
            box->post([this, token, end, activation] { ended(token, end, activation); });
        });
        bus->moveToThread(thread);
        QObject::connect(thread, &QThread::finished, bus, &QObject::deleteLater);
        thread->start();
    }

    void ended(std::uint64_t token, NotificationBus::End end, const QString& activation) {
        const auto known = shown.extract(token);
        if (!known)
            return;
        const Notification& notification = known.mapped();
        if (end == NotificationBus::End::undo && notification.undo)
            notification.undo();
        if (end != NotificationBus::End::clicked || !clicked)
            return;
        if (notification.show)
            notification.show();
        clicked(activation.toStdString());
    }
};

DesktopNotifier::DesktopNotifier(const Environment& environment)
    : state_(std::make_unique<State>(sessionBusAddress(environment))) {}
DesktopNotifier::~DesktopNotifier() = default;

void DesktopNotifier::onClicked(std::function<void(const std::string& token)> clicked) {
    state_->clicked = std::move(clicked);
}

void DesktopNotifier::post(const Notification& notification) {
    State& state = *state_;
    if (state.address.isEmpty())
        return;
    if (!state.thread)
        state.start();
    NotificationBus::Request request{.token = ++state.lastToken,
                                     .title = notification.title,
                                     .body = notification.body,
                                     .offersUndo = bool(notification.undo),
                                     .canBeClicked = bool(state.clicked)};
    state.shown.emplace(request.token, notification);
    QMetaObject::invokeMethod(state.bus, [bus = state.bus, request] { bus->show(request); });
}

} // namespace quillon
