// Measuring and walking a folder tree. The tree is the one that ORLEN_BENCH_TREE names, or one of 20,000
// files made for the run. Compare with: du -s TREE.

#include "clean/Safety.h"
#include "scan/FS.h"
#include "scan/ScanProgress.h"
#include "scan/walk/Walk.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

class Tree {
public:
    Tree()
    {
        if (const char* named = std::getenv("ORLEN_BENCH_TREE")) {
            m_path = named;
            return;
        }
        m_path = (fs::temp_directory_path() / "orlen-bench-tree").string();
        m_isOwn = true;
        for (int i = 0; i < 20'000; ++i) {
            const fs::path folder = fs::path(m_path) / std::to_string(i % 40) / std::to_string(i % 1'000);
            fs::create_directories(folder);
            std::ofstream(folder / ("file-" + std::to_string(i))) << "content";
        }
    }
    ~Tree()
    {
        if (m_isOwn)
            fs::remove_all(m_path);
    }
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    [[nodiscard]] const std::string& path() const { return m_path; }

private:
    std::string m_path;
    bool m_isOwn = false;
};

const std::string& treePath()
{
    static const Tree tree;
    return tree.path();
}

void measureTree(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(orlen::FS::allocatedSize(treePath()));
}
BENCHMARK(measureTree)->Unit(benchmark::kMillisecond)->UseRealTime();

void walkTree(benchmark::State& state)
{
    orlen::Safety::refresh();
    std::int64_t items = 0;
    for (auto _ : state) {
        orlen::ScanProgress progress;
        benchmark::DoNotOptimize(orlen::Walk::folders({treePath()}, progress, {}));
        items += progress.files();
    }
    state.SetItemsProcessed(items);
}
BENCHMARK(walkTree)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
