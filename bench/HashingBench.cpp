#include "scan/duplicates/ContentComparer.h"
#include "scan/duplicates/Duplicates.h"
#include "scan/duplicates/FileHasher.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace orlen {
namespace {

/// Identical files of one length in a folder of their own, in memory after they were written.
class Copies {
public:
    Copies(std::size_t files, std::int64_t length)
        : m_folder(std::filesystem::temp_directory_path() / "orlen-hashing-bench")
    {
        std::filesystem::create_directories(m_folder);
        const std::string content(static_cast<std::size_t>(length), 'x');
        for (std::size_t i = 0; i < files; ++i) {
            const std::string path = (m_folder / std::to_string(i)).string();
            std::ofstream(path, std::ios::binary) << content;
            m_cands.push_back({path, length, {}});
        }
        for (const Cand& cand : m_cands) {
            Suspect& suspect = m_suspects.emplace_back();
            suspect.cand = &cand;
            suspect.seen = statusOf(cand.path).value();
        }
    }
    ~Copies() { std::filesystem::remove_all(m_folder); }
    Copies(const Copies&) = delete;
    Copies& operator=(const Copies&) = delete;

    [[nodiscard]] const std::vector<Cand>& cands() const { return m_cands; }
    [[nodiscard]] const std::vector<Suspect>& suspects() const { return m_suspects; }

private:
    std::filesystem::path m_folder;
    std::vector<Cand> m_cands;
    std::vector<Suspect> m_suspects;
};

void quickHash(benchmark::State& state)
{
    const Copies copies(1, state.range(0));
    FileHasher hasher{{}};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(hasher.quick(copies.suspects().front()));
    state.SetBytesProcessed(hasher.bytesRead());
}
BENCHMARK(quickHash)->Arg(20'000)->Arg(65'536)->Arg(1'000'000);

void fullHash(benchmark::State& state)
{
    const Copies copies(1, state.range(0));
    FileHasher hasher{{}};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(hasher.full(copies.suspects().front()));
    state.SetBytesProcessed(hasher.bytesRead());
}
BENCHMARK(fullHash)->Arg(1'000'000)->Arg(100'000'000);

void compare(benchmark::State& state)
{
    const Copies copies(static_cast<std::size_t>(state.range(0)), state.range(1));
    ContentComparer comparer{{}};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(comparer.identical(copies.suspects(), [](std::int64_t) {}));
    state.SetBytesProcessed(comparer.bytesRead());
}
BENCHMARK(compare)->Args({2, 1'000'000})->Args({2, 100'000'000})->Args({16, 10'000'000});

/// The whole search: few files of one content are compared, many are hashed.
void findDuplicates(benchmark::State& state)
{
    const Copies copies(static_cast<std::size_t>(state.range(0)), state.range(1));
    std::int64_t bytes = 0;
    for ([[maybe_unused]] auto _ : state)
        bytes += Duplicates::find(copies.cands(), {}).bytesHashed;
    state.SetBytesProcessed(bytes);
}
BENCHMARK(findDuplicates)->Args({4, 50'000'000})->Args({200, 1'000'000})->UseRealTime();

} // namespace
} // namespace orlen
