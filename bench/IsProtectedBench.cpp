#include "clean/Safety.h"

#include <benchmark/benchmark.h>

#include <string>

// How long one question to the safety gate takes. A walk asks it for every folder from all its threads, so
// the time must not grow with the number of threads.

namespace {

using namespace orlen;

void ask(benchmark::State& state, const std::string& nameInHome)
{
    const std::string path = Safety::home() + "/" + nameInHome;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(Safety::isProtected(path));
}

void ordinaryFile(benchmark::State& state)
{
    ask(state, "Projects/harbour/survey/2024/scans/sheet-0031.tiff");
}

void fileBesideManyRules(benchmark::State& state)
{
    ask(state, ".config/Slack/Cache/Cache_Data/f_000123");
}

void sealedFile(benchmark::State& state)
{
    ask(state, ".config/google-chrome-beta/Default/History");
}

void pathWithDots(benchmark::State& state)
{
    ask(state, "Projects/../Projects/harbour/./survey/2024/scans/sheet-0031.tiff");
}

void folderOfAWalk(benchmark::State& state)
{
    const std::string path = Safety::home() + "/Projects/harbour/survey/2024/scans/old";
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(Safety::protectsContents(path));
}

void refresh(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state)
        Safety::refresh();
}

} // namespace

BENCHMARK(ordinaryFile)->Threads(1)->Threads(8);
BENCHMARK(fileBesideManyRules);
BENCHMARK(sealedFile);
BENCHMARK(pathWithDots);
BENCHMARK(folderOfAWalk)->Threads(1)->Threads(8);
BENCHMARK(refresh)->Unit(benchmark::kMicrosecond);
