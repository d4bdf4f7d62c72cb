#include "engine/FirstMatch.h"

#include "engine/KindClassifier.h"

#include <algorithm>
#include <thread>

namespace quillon {
namespace {

// Below this many files another thread costs more than it saves.
constexpr std::size_t filesWorthAThread = 1000;

FirstMatch firstMatch(const std::vector<CompiledRule>& rules, MatchContext& context) {
    for (std::size_t i = 0; i < rules.size(); ++i) {
        switch (rules[i].match(context)) {
        case MatchOutcome::matches:
            return {.rule = i, .waiting = false};
        case MatchOutcome::waiting:
            return {.rule = std::nullopt, .waiting = true};
        case MatchOutcome::doesNotMatch:
            break;
        }
    }
    return {};
}

std::uint64_t everyMatchOf(const std::vector<CompiledRule>& rules, MatchContext& context) {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < rules.size(); ++i)
        if (rules[i].match(context) == MatchOutcome::matches)
            bits |= std::uint64_t(1) << i;
    return bits;
}

template <typename T>
using Matcher = T (*)(const std::vector<CompiledRule>&, MatchContext&);

template <typename T>
void matchRange(const MatchSetup& setup, const std::vector<CompiledRule>& rules,
                std::span<const ListedFile* const> files, std::span<T> found, Matcher<T> match) {
    if (files.empty())
        return;
    KindClassifier kinds(setup.platform.contentTypes);
    FileFacts facts(setup.platform, kinds, setup.folder, *files.front());
    MatchContext context{facts, setup.judge, setup.now, setup.restraint};
    for (std::size_t i = 0; i < files.size(); ++i) {
        facts.reset(*files[i]);
        found[i] = match(rules, context);
    }
}

template <typename T>
std::vector<T> matched(const MatchSetup& setup, std::span<const ListedFile* const> files,
                       Matcher<T> match) {
    std::vector<T> found(files.size());
    const std::size_t threads = std::clamp<std::size_t>(
        files.size() / filesWorthAThread, 1, std::max(1U, std::thread::hardware_concurrency()));
    const std::size_t share = (files.size() + threads - 1) / threads;
    std::vector<std::jthread> others;
    for (std::size_t start = share; start < files.size(); start += share) {
        const std::size_t length = std::min(share, files.size() - start);
        // Rules of its own: threads that share one contend for its reference counts.
        others.emplace_back([&, start, length, rules = setup.rules] {
            matchRange(setup, rules, files.subspan(start, length),
                       std::span(found).subspan(start, length), match);
        });
    }
    matchRange(setup, setup.rules, files.first(std::min(share, files.size())), std::span(found),
               match);
    return found;
}

} // namespace

std::vector<FirstMatch> firstMatches(const MatchSetup& setup,
                                     std::span<const ListedFile* const> files) {
    return matched<FirstMatch>(setup, files, firstMatch);
}

std::vector<std::uint64_t> everyMatch(const MatchSetup& setup,
                                      std::span<const ListedFile* const> files) {
    return matched<std::uint64_t>(setup, files, everyMatchOf);
}

} // namespace quillon
