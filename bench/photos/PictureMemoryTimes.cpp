// Times of what is remembered of pictures, and the memory it takes: picture_memory_times FILE [PICTURES].
// Writes PICTURES (50,000) records into FILE, which must not exist; then does as a second scan with nothing
// new does, and as one with 1,500 new pictures.

#include "platform/images/ImageAnalysis.h"
#include "scan/photos/PictureMemory.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace orlen {

namespace {

using Clock = std::chrono::steady_clock;

/// Megabytes: `VmRSS:` now, `VmHWM:` at most so far.
long memory(const char* row)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(row))
            return std::atol(line.c_str() + std::string(row).size()) / 1000;
    }
    return 0;
}

FileStamp stampOf(std::uint64_t number)
{
    return {FileType::regular, {7, number}, 1'000, TimePoint(std::chrono::seconds(number)), {}};
}

PictureMemory::Learned learnedOf(std::uint64_t number)
{
    constexpr std::size_t kPacked = 3'600; // as of most photos
    std::mt19937 random(static_cast<unsigned>(number));
    std::vector<std::uint8_t> tile(kPacked);
    std::ranges::generate(tile, [&] { return static_cast<std::uint8_t>(random()); });
    FeaturePrint::Direction direction{};
    direction[number % direction.size()] = 1;
    const ImageAnalysis analysis{.width = 4000,
                                 .height = 3000,
                                 .print = FeaturePrint(direction, std::move(tile)),
                                 .sharpness = 12.5,
                                 .labels = {{"receipt", 0.5F}}};
    return {stampOf(number), analysis};
}

template <typename Work>
void time(const char* what, const Work& work)
{
    const long before = memory("VmRSS:");
    const auto start = Clock::now();
    work();
    const std::chrono::duration<double> took = Clock::now() - start;
    std::printf("%-28s %6.2f s, %4ld MB before, %4ld MB after, at most %4ld MB so far\n", what, took.count(),
                before, memory("VmRSS:"), memory("VmHWM:"));
}

void run(const std::string& path, std::uint64_t count)
{
    constexpr std::uint64_t kNew = 1'500;
    const TimePoint now = std::chrono::system_clock::now();
    const auto learn = [&](std::uint64_t first, std::uint64_t last) {
        std::vector<PictureMemory::Learned> learned;
        for (std::uint64_t number = first; number < last; ++number)
            learned.push_back(learnedOf(number));
        return learned;
    };
    for (std::uint64_t first = 0; first < count; first += kNew)
        PictureMemory(path).remember(learn(first, std::min(first + kNew, count)), now);
    std::vector<Cand> images;
    for (std::uint64_t number = 0; number < count; ++number)
        images.push_back({"/p", 1, {}, stampOf(number)});
    const auto learned = learn(count, count + kNew);
    PictureMemory memory(path);
    std::vector<std::unique_ptr<PictureMemory::Known>> known;
    time("recalled", [&] { known = memory.recall(images, now); });
    std::printf("%zd of %zu known\n",
                std::ranges::count_if(known, [](const auto& one) { return one != nullptr; }), known.size());
    time("remembered, nothing new", [&] { memory.remember({}, now); });
    time("remembered, 1,500 new", [&] { memory.remember(learned, now); });
}

} // namespace

} // namespace orlen

int main(int argc, char** argv)
{
    if (argc < 2 || std::filesystem::exists(argv[1])) {
        std::fprintf(stderr, "usage: picture_memory_times FILE [PICTURES]; FILE must not exist\n");
        return 2;
    }
    constexpr std::uint64_t kPictures = 50'000;
    orlen::run(argv[1], argc > 2 ? static_cast<std::uint64_t>(std::atoll(argv[2])) : kPictures);
    return 0;
}
