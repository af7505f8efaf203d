#include "insight/AskEngine.h"
#include "platform/files/Places.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
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

/// A home folder of so many files, 40 in each folder, every fourth folder hidden.
std::shared_ptr<const orlen::HomeFiles> home(std::uint32_t files)
{
    constexpr std::uint32_t kInFolder = 40;
    constexpr const char* kEndings[] = {".jpg", ".mp4", ".pdf", ".zip", ".txt"};
    const std::uint32_t folders = 1 + files / kInFolder;
    orlen::HomeFiles::Contents all;
    all.home = orlen::Places::current().home;
    all.parents.assign(folders, 0);
    all.folderBytes.assign(folders, 1'000'000);
    all.fileCounts.assign(folders, kInFolder);
    all.firstFiles.push_back(0);
    for (std::uint32_t i = 0; i < folders; ++i) {
        all.folderNames.push_back(static_cast<std::uint32_t>(all.names.size()));
        all.names += (i % 4 == 0 ? ".folder " : "folder ") + std::to_string(i);
        all.isOwn.push_back(i == 0 || i % 4 != 0 ? 1 : 0);
        all.ends.push_back(i == 0 ? folders : i + 1);
        all.firstFiles.push_back(i * kInFolder);
    }
    all.folderNames.push_back(static_cast<std::uint32_t>(all.names.size()));
    for (std::uint32_t i = 0; i < (folders - 1) * kInFolder; ++i) {
        all.fileNames.push_back(static_cast<std::uint32_t>(all.names.size()));
        all.names += "summer holiday " + std::to_string(i) + kEndings[i % 5];
        all.folderOfFile.push_back(1 + i / kInFolder);
        all.fileBytes.push_back(4'096 * (i * 7'919LL % 100'000));
        all.changed.push_back(1'600'000'000 + i);
        all.opened.push_back(1'700'000'000 + i);
        all.counted.push_back(i);
    }
    all.fileNames.push_back(static_cast<std::uint32_t>(all.names.size()));
    return std::make_shared<const orlen::HomeFiles>(std::move(all));
}

void ask(benchmark::State& state, const char* question)
{
    (void)answer(question, scan()); // makes the index of names before the clock runs
    while (state.KeepRunning())
        benchmark::DoNotOptimize(answer(question, scan()));
}

/// With everything that lies in a home folder of so many files.
void askHome(benchmark::State& state, const char* question)
{
    AskContext context = scan();
    context.home = home(static_cast<std::uint32_t>(state.range(0)));
    context.now = orlen::TimePoint(std::chrono::seconds(1'750'000'000));
    (void)answer(question, context);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(answer(question, context));
}

void makeHomeIndex(benchmark::State& state)
{
    const auto files = home(static_cast<std::uint32_t>(state.range(0)));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(orlen::HomeNames(files));
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
constexpr int kManyFiles = 100'000;
constexpr int kMostFiles = 500'000;
BENCHMARK_CAPTURE(askHome, biggest, "10 biggest files")
    ->Arg(kManyFiles)
    ->Arg(kMostFiles)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(askHome, smallest, "smallest files")
    ->Arg(kManyFiles)
    ->Arg(kMostFiles)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(askHome, ofKind, "newest photos")
    ->Arg(kManyFiles)
    ->Arg(kMostFiles)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(askHome, without, "biggest files except videos in folder 7")
    ->Arg(kManyFiles)
    ->Arg(kMostFiles)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(askHome, count, "how many zip files do I have")
    ->Arg(kManyFiles)
    ->Arg(kMostFiles)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(askHome, folders, "biggest folders")
    ->Arg(kManyFiles)
    ->Arg(kMostFiles)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(askHome, name, "can I delete summer holiday 8001.mp4")
    ->Arg(kManyFiles)
    ->Arg(kMostFiles)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(askHome, noName, "can I delete winter holiday 8001.mp4")
    ->Arg(kManyFiles)
    ->Arg(kMostFiles)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(askHome, folderSize, "how big is folder 7")
    ->Arg(kManyFiles)
    ->Arg(kMostFiles)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(makeHomeIndex)->Arg(kManyFiles)->Arg(kMostFiles)->Unit(benchmark::kMillisecond);
BENCHMARK(makeIndex)->Unit(benchmark::kMillisecond);

} // namespace
