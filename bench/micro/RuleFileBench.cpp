#include "engine/CompiledRule.h"
#include "engine/RuleSummary.h"
#include "model/RuleFile.h"

#include <QFile>
#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

QByteArray ruleFile() {
    QFile file(QStringLiteral(QUILLON_BENCH_RULES));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<Rule> decoded(benchmark::State& state) {
    Expected<std::vector<Rule>> rules = decodeRules(ruleFile());
    if (!rules || rules->empty()) {
        state.SkipWithError("the rule file can't be read");
        return {};
    }
    return *std::move(rules);
}

void decodeTwentyRules(benchmark::State& state) {
    const QByteArray bytes = ruleFile();
    if (decoded(state).empty())
        return;
    for (auto _ : state)
        benchmark::DoNotOptimize(decodeRules(bytes));
}
BENCHMARK(decodeTwentyRules);

void compileTwentyRules(benchmark::State& state) {
    const std::vector<Rule> rules = decoded(state);
    for (auto _ : state)
        for (const Rule& rule : rules)
            benchmark::DoNotOptimize(CompiledRule(rule));
}
BENCHMARK(compileTwentyRules);

void summariseTwentyRules(benchmark::State& state) {
    const std::vector<Rule> rules = decoded(state);
    for (auto _ : state)
        for (const Rule& rule : rules)
            benchmark::DoNotOptimize(summary(rule));
}
BENCHMARK(summariseTwentyRules);

} // namespace
} // namespace quillon::bench
