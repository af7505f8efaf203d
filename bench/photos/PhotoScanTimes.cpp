// Times the photo step on the images of a folder, and again with what it remembers: photo_scan_times FOLDER
// MEMORY. MEMORY is a file that need not exist.

#include "platform/files/FileStatus.h"
#include "platform/images/ImageWorkers.h"
#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "scan/photos/PhotoAnalyzer.h"
#include "scan/photos/PictureMemory.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>

namespace orlen {

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

std::vector<Cand> imagesIn(const std::string& folder)
{
    std::vector<Cand> images;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const auto status = statusOf(entry.path().string());
        if (status.ok() && status.value().type == FileType::regular)
            images.push_back({entry.path().string(), status.value().allocatedBytes, status.value().modified,
                              FileStamp::of(status.value())});
    }
    std::ranges::sort(images, {}, &Cand::path);
    return images;
}

void timeScan(const std::vector<Cand>& images, const std::string& path)
{
    ScanProgress progress;
    const ScanFlag flag;
    ImageWorkers workers({.program = ORLEN_RECOGNIZER});
    PictureMemory memory(path);
    const PhotoAnalyzer analyzer(
        progress, flag, [&](const std::string& image) { return workers.analyze(image, flag.token()); },
        &memory);
    const auto start = Clock::now();
    const PhotoAnalyzer::Analyzed analyzed = analyzer.analyze(images);
    const double looked = secondsSince(start);
    const auto findings = PhotoAnalyzer::findings(analyzed.photos);
    std::printf("%lld of %lld looked at: %.2f s; %zu in sets: %.2f s\n",
                static_cast<long long>(analyzed.coverage.lookedAt),
                static_cast<long long>(analyzed.coverage.all), looked, findings.front().items.size(),
                secondsSince(start) - looked);
}

} // namespace

} // namespace orlen

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: photo_scan_times FOLDER MEMORY\n");
        return 2;
    }
    const std::vector<orlen::Cand> images = orlen::imagesIn(argv[1]);
    orlen::timeScan(images, argv[2]);
    orlen::timeScan(images, argv[2]);
    return 0;
}
