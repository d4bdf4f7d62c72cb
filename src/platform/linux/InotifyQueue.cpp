#include "platform/linux/InotifyQueue.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <sys/inotify.h>
#include <utility>

namespace quillon {

namespace {

constexpr std::uint32_t ofItself = IN_DELETE_SELF | IN_MOVE_SELF;
// Not IN_MODIFY: a file that is being written for hours would never let its folder be quiet.
constexpr std::uint32_t ofEntries = IN_CREATE | IN_CLOSE_WRITE | IN_MOVED_FROM | IN_MOVED_TO |
                                    IN_DELETE | IN_ATTRIB | IN_EXCL_UNLINK;
// Adding, as a second holder must not take from the first what it wants.
constexpr std::uint32_t always = IN_ONLYDIR | IN_MASK_ADD;

constexpr std::array<std::uint32_t, 3> masks{
    always | ofItself | ofEntries | IN_DONT_FOLLOW,
    always | ofItself | ofEntries,
    always | ofItself,
};

constexpr std::size_t bufferSize = 65'536;

} // namespace

InotifyQueue::InotifyQueue(std::function<std::size_t()> limit) : limit_(std::move(limit)) {
    reopen();
}

bool InotifyQueue::reopen() {
    if (!queue_.isOpen()) {
        queue_ = Descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
        error_ = queue_.isOpen() ? 0 : errno;
    }
    return queue_.isOpen();
}

int InotifyQueue::hold(const std::string& path, Interest interest) {
    if (!queue_.isOpen()) {
        return -error_;
    }
    const int watch =
        ::inotify_add_watch(queue_.get(), path.c_str(), masks.at(std::size_t(interest)));
    if (watch < 0) {
        return -errno;
    }
    if (limit_ && !holders_.contains(watch) && holders_.size() >= limit_()) {
        (void)::inotify_rm_watch(queue_.get(), watch);
        return -ENOSPC;
    }
    ++holders_[watch];
    return watch;
}

void InotifyQueue::release(int watch) {
    const auto found = holders_.find(watch);
    if (found != holders_.end() && --found->second == 0) {
        holders_.erase(found);
        // Refused when the folder itself is gone and its watch with it.
        (void)::inotify_rm_watch(queue_.get(), watch);
    }
}

std::vector<InotifyEvent> InotifyQueue::read() {
    std::vector<InotifyEvent> events;
    buffer_.resize(bufferSize);
    const ssize_t length = ::read(queue_.get(), buffer_.data(), buffer_.size());
    for (ssize_t at = 0; at < length;) {
        inotify_event header = {};
        std::memcpy(&header, buffer_.data() + at, sizeof(header));
        const char* const name = buffer_.data() + at + sizeof(header);
        events.push_back(
            {.watch = header.wd, .mask = header.mask, .name = {name, ::strnlen(name, header.len)}});
        at += static_cast<ssize_t>(sizeof(header) + header.len);
    }
    return events;
}

std::size_t InotifyQueue::limit() const {
    if (limit_) {
        return limit_();
    }
    std::size_t limit = 0;
    std::ifstream("/proc/sys/fs/inotify/max_user_watches") >> limit;
    return limit;
}

} // namespace quillon
