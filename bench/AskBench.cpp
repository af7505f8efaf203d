#include "insight/AskEngine.h"
#include "platform/files/Places.h"

#include <benchmark/benchmark.h>

#include <string>
#include <utility>
#include <vector>

/// A question over a scan of 100,000 entries must be answered at once. Quote the processor time.
namespace {

using orlen::AskContext;
using orlen::AskEngine::answer;

const AskContext& scan()
{
    static const AskContext context = [] {
        constexpr int kMany = 100'000;
        constexpr const char* kWords[] = {"holiday", "invoice", "meeting", "garden",
                                          "concert", "backup",  "draft"};
        constexpr const char* kEndings[] = {".jpg", ".mp4", ".pdf", ".zip"};
        std::vector<orlen::FileEntry> photos;
        std::vector<orlen::FileEntry> old;
        for (int i = 0; i < kMany; ++i) {
            const std::string name = std::string(kWords[i % 7]) + " " + std::to_string(i) + kEndings[i % 4];
            const std::string folder =
                orlen::Places::current().home + "/Pictures/" + std::to_string(i / 40) + "/";
            (i % 2 == 0 ? photos : old)
                .push_back(
                    {folder + name, 1'000'000 + i, orlen::TimePoint(std::chrono::hours(i)), {}, {}, {}});
        }
        AskContext made;
        made.findings.emplace_back(orlen::FindingKind::photoDuplicates, std::move(photos));
        made.findings.emplace_back(orlen::FindingKind::oldFiles, std::move(old));
        made.findings.front().rating = orlen::Rating::safe;
        made.breakdown.total = 1'000'000'000'000;
        made.breakdown.free = 1'000'000'000;
        return made;
    }();
    return context;
}

void ask(benchmark::State& state, const char* question)
{
    (void)answer(question, scan()); // makes the index of names before the clock runs
    while (state.KeepRunning())
        benchmark::DoNotOptimize(answer(question, scan()));
}

void makeIndex(benchmark::State& state)
{
    while (state.KeepRunning())
        benchmark::DoNotOptimize(orlen::NameIndex(scan().findings));
}

BENCHMARK_CAPTURE(ask, space, "how much space is left")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, file, "can i delete holiday 7.zip")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, mistypedFile, "can i delte inovice 8001.mp4")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, mistypedEnding, "is concert 4.jgp safe")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, manyTypos, "waht are teh bigest fiels in my pcitures flder")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, nonsense, "what is xyzzy plugh frobnicate quux wibble wobble")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, manyHits, "what is holiday")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, manyHitsMistyped, "what is holidya")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, list, "biggest photos")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, listWithout, "oldest files except videos and pdfs")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, proposal, "free 5 GB")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ask, everythingSafe, "what can i delete besides videos")->Unit(benchmark::kMillisecond);
BENCHMARK(makeIndex)->Unit(benchmark::kMillisecond);

} // namespace
