#include "LabelMetrics.h"

#include "recognition/ImageClassifier.h"
#include "recognition/ImageDecoder.h"
#include "recognition/LineDirection.h"
#include "recognition/PictureLabels.h"
#include "recognition/Sharpness.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <initializer_list>
#include <map>
#include <string_view>

namespace orlen {

namespace {

using PhotoFolder::Photo;
using Labels = std::vector<ImageLabel>;

bool has(const Labels& labels, std::initializer_list<std::string_view> words, float least)
{
    return std::any_of(labels.begin(), labels.end(), [&](const ImageLabel& label) {
        return label.confidence >= least &&
               std::any_of(words.begin(), words.end(), [&](std::string_view word) {
                   return label.identifier.find(word) != std::string::npos;
               });
    });
}

/// The rules of the photo analysis, without the one about file names.
std::string findingOf(const Labels& labels, double sharpness, int width)
{
    if (has(labels, {"screenshot"}, 0.3F))
        return "screenshots";
    if (has(labels, {"receipt", "invoice"}, 0.2F) || has(labels, {"document", "paper"}, 0.6F))
        return "receipts";
    if (has(labels, {"meme"}, 0.2F) ||
        (has(labels, {"text"}, 0.5F) &&
         has(labels, {"cartoon", "illustration", "comic", "poster", "people"}, 0.3F)))
        return "memes";
    return sharpness < 22 && width >= 301 ? "blurry" : "none";
}

std::string expectedOf(const std::string& kind)
{
    static const std::map<std::string, std::string> expected = {
        {"screenshot", "screenshots"}, {"receipt", "receipts"}, {"document", "receipts"}, {"meme", "memes"}};
    const auto found = expected.find(kind);
    return found == expected.end() ? "none" : found->second;
}

struct Counts {
    int put = 0;
    int right = 0;
    int belonging = 0;
};

/// How many turned pages are still pages: a quarter, half and three quarters of a turn.
using Turns = std::array<int, 3>;

void countTurned(RgbImage page, double sharpness, int width, Turns& found)
{
    for (int& count : found) {
        page = LineDirection::turned(page);
        count += findingOf(ImageClassifier::labels(page, {}), sharpness, width) == "receipts" ? 1 : 0;
    }
}

double share(int part, int whole)
{
    return whole == 0 ? 0 : static_cast<double>(part) / whole;
}

} // namespace

void LabelMetrics::report(const std::string& folder, const std::vector<Photo>& photos)
{
    std::map<std::string, Counts> findings;
    std::map<std::string, std::map<std::string, int>> table;
    std::vector<std::string> wrong;
    Turns turned{};
    double seconds = 0;
    int decodedCount = 0;
    for (const Photo& photo : photos) {
        const int file = ::open((folder + "/" + photo.file).c_str(), O_RDONLY | O_CLOEXEC);
        const auto decoded = ImageDecoder::decode(file, ImageDecoder::kForRecognition);
        if (!decoded) {
            ::close(file);
            continue;
        }
        ++decodedCount;
        const std::clock_t start = std::clock(); // of the processor: others may be at work, too
        const Labels labels = PictureLabels::of(file, *decoded);
        seconds += static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        ::close(file);
        const double sharpness = Sharpness::laplacianVariance(decoded->small);
        const std::string finding = findingOf(labels, sharpness, decoded->width);
        const std::string expected = expectedOf(photo.kind);
        ++findings[finding].put;
        ++findings[expected].belonging;
        findings[finding].right += finding == expected ? 1 : 0;
        ++table[photo.kind][finding];
        if (expected == "receipts")
            countTurned(decoded->small, sharpness, decoded->width, turned);
        if (finding != expected && finding != "blurry")
            wrong.push_back(photo.file + " " + finding);
    }
    std::printf("\nFindings of %d pictures, %.1f ms of labels each\n", decodedCount,
                decodedCount == 0 ? 0 : 1000 * seconds / decodedCount);
    for (const char* finding : {"screenshots", "receipts", "memes"}) {
        const Counts& counts = findings[finding];
        std::printf("%-12s precision %.3f recall %.3f (%d put, %d belong)\n", finding,
                    share(counts.right, counts.put), share(counts.right, counts.belonging), counts.put,
                    counts.belonging);
    }
    for (const auto& [kind, put] : table) {
        std::printf("%-13s", kind.c_str());
        for (const auto& [finding, count] : put)
            std::printf(" %s %d", finding.c_str(), count);
        std::printf("\n");
    }
    const int pages = findings["receipts"].belonging;
    std::printf("pages turned by 90, 180, 270 degrees: recall %.3f %.3f %.3f\n", share(turned[0], pages),
                share(turned[1], pages), share(turned[2], pages));
    for (const std::string& line : wrong)
        std::printf("wrong: %s\n", line.c_str());
}

} // namespace orlen
