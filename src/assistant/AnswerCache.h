#pragma once

#include "platform/Clock.h"

#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace quillon {

/// How long a question that failed is left alone, so that a model that keeps failing isn't asked
/// again on every run.
inline constexpr std::chrono::seconds failureWait{600};

/// Answers by key, and the keys whose answer is outstanding: pending until they are taken, then
/// taken until an answer or a failure is recorded. Not locked.
template <typename Key, typename Answer>
class AnswerCache {
public:
    [[nodiscard]] std::optional<Answer> answer(const Key& key) const {
        const auto found = answers_.find(key);
        return found == answers_.end() ? std::nullopt : std::optional(found->second);
    }

    /// True when the key became pending: it was not outstanding and has not failed lately.
    bool queue(const Key& key, Timestamp now) {
        if (taken_.contains(key) || failedLately(key, now))
            return false;
        failed_.erase(key);
        return pending_.insert(key).second;
    }

    [[nodiscard]] bool hasPending() const { return !pending_.empty(); }
    [[nodiscard]] bool hasOutstanding() const { return !pending_.empty() || !taken_.empty(); }
    [[nodiscard]] bool isOutstanding(const Key& key) const {
        return pending_.contains(key) || taken_.contains(key);
    }

    /// Up to `most` pending keys, in order.
    [[nodiscard]] std::vector<Key> take(std::size_t most) {
        std::vector<Key> keys;
        while (keys.size() < most && !pending_.empty()) {
            const auto inserted = taken_.insert(pending_.extract(pending_.begin()));
            keys.push_back(*inserted.position);
        }
        return keys;
    }

    /// Both return whether the key was outstanding.
    bool record(const Key& key, Answer answer) {
        answers_.insert_or_assign(key, std::move(answer));
        failed_.erase(key);
        return close(key);
    }
    bool recordFailure(const Key& key, Timestamp now) {
        failed_.insert_or_assign(key, now);
        return close(key);
    }

    void clearAnswers() { answers_.clear(); }

private:
    /// A failure in the future, after the clock was set back, holds nothing up.
    [[nodiscard]] bool failedLately(const Key& key, Timestamp now) const {
        const auto found = failed_.find(key);
        return found != failed_.end() && found->second <= now && now - found->second < failureWait;
    }

    bool close(const Key& key) { return pending_.erase(key) + taken_.erase(key) > 0; }

    std::map<Key, Answer> answers_;
    std::set<Key> pending_;
    std::set<Key> taken_;
    std::map<Key, Timestamp> failed_;
};

} // namespace quillon
