// What it costs to hold one file against twenty rules, when all that can be known without the disk
// is known already.

#include "../../tests/support/FakePlatform.h"
#include "engine/CompiledRule.h"
#include "engine/KindClassifier.h"
#include "model/RuleFile.h"
#include "platform/linux/MimeContentTypes.h"

#include <QFile>
#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>
#include <span>
#include <thread>

namespace quillon {
namespace {

/// Answers nothing: none of the rules asks.
class NoJudge : public FileJudge {
public:
    Verdict verdict(const std::string&, const QString&) override { return Verdict::unknown; }
    std::optional<QString> smartName(const std::string&) override { return std::nullopt; }
    void fileMoved(const std::string&, const FileStatus&, const std::string&) override {}
    bool isWaiting(const std::string&) override { return false; }
};

std::vector<CompiledRule> twentyRules() {
    const auto path = std::filesystem::path(__FILE__).parent_path().parent_path() / "rules-20.json";
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    std::vector<CompiledRule> compiled;
    for (const Rule& rule : decodeRules(file.readAll()).value_or(std::vector<Rule>()))
        compiled.emplace_back(rule);
    return compiled;
}

std::vector<ListedFile> files(std::span<const std::string_view> patterns, Timestamp now) {
    constexpr std::size_t count = 10'000;
    std::vector<ListedFile> listed;
    for (std::size_t i = 0; i < count; ++i) {
        std::string name(patterns[i % patterns.size()]);
        const std::string number = std::to_string(100'000 + i);
        name.replace(name.find('#'), 1, number);
        listed.push_back({name, {}});
        listed.back().status.size = 1000 * i;
        listed.back().status.modified = now - std::chrono::hours(24 * (i % 900));
    }
    return listed;
}

constexpr auto asciiNames = std::to_array<std::string_view>(
    {"DSC#.jpg", "report #.docx", "holiday-#.png", "song #.mp3", "draft #.txt", "slides-#.pptx",
     "clip#.mov", "main_#.cpp", "data.#.json", "overview #.pdf", "paper-#.pdf"});
constexpr auto accentedNames = std::to_array<std::string_view>(
    {"Übersicht #.pdf", "Протокол #.docx", "写真#.jpg", "résumé-#.txt"});

void match(benchmark::State& state, std::span<const std::string_view> names) {
    testing::FakePlatform machine;
    const MimeContentTypes types;
    NoJudge judge;
    const auto threads = static_cast<std::size_t>(state.range(0));
    const std::vector<std::vector<CompiledRule>> copies(threads, twentyRules());
    const std::vector<ListedFile> listed = files(names, machine.clock.now());
    const std::string folder = "/home/user/Downloads";

    const auto work = [&](const std::vector<CompiledRule>& rules,
                          std::span<const ListedFile> share) {
        KindClassifier kinds(types);
        FileFacts facts(machine.platform, kinds, folder, share.front());
        MatchContext context{facts, judge, machine.clock.now()};
        std::size_t matches = 0;
        for (const ListedFile& file : share) {
            facts.reset(file);
            for (const CompiledRule& rule : rules)
                if (rule.match(context) == MatchOutcome::matches) {
                    ++matches;
                    break;
                }
        }
        benchmark::DoNotOptimize(matches);
    };
    for (auto iteration : state) {
        std::vector<std::jthread> running;
        for (std::size_t i = 0; i < threads; ++i)
            running.emplace_back(
                work, std::cref(copies[i]),
                std::span(listed).subspan(i * listed.size() / threads, listed.size() / threads));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(listed.size()));
    state.counters["rules"] = static_cast<double>(copies[0].size());
}

BENCHMARK_CAPTURE(match, ascii, asciiNames)->Arg(1)->Arg(2)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK_CAPTURE(match, accented, accentedNames)
    ->Arg(1)
    ->Arg(2)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

} // namespace
} // namespace quillon
