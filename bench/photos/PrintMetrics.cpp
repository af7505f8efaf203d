#include "PrintMetrics.h"

#include "ChangedCopies.h"
#include "recognition/AreaScale.h"
#include "recognition/PrintMaker.h"
#include "scan/photos/PageCheck.h"
#include "scan/photos/PrintDistance.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <map>

namespace orlen {

namespace {

using PhotoFolder::Photo;

constexpr float kNearDuplicate = 0.32F;

struct Printed {
    Photo photo;
    FeaturePrint print;
};

struct Share {
    int found = 0;
    int all = 0;
};
/// Per kind and change.
using Recall = std::map<std::string, std::map<std::string, Share>>;

RgbImage thumbnail(const RgbImage& image)
{
    const double scale = std::min(512.0 / std::max(image.width, image.height), 1.0);
    RgbImage result{.width = std::max(static_cast<int>(std::lround(scale * image.width)), 1),
                    .height = std::max(static_cast<int>(std::lround(scale * image.height)), 1),
                    .pixels = {}};
    for (const float value : AreaScale::scaled(image, result.width, result.height))
        result.pixels.push_back(static_cast<std::uint8_t>(std::lround(value)));
    return result;
}

/// Pages are looked at closely.
bool isPage(const Photo& photo)
{
    return photo.kind == "receipt" || photo.kind == "document" || photo.kind == "screenshot";
}

/// Its print, and what its copies do to the recall. Every picture has a seed of its own.
std::optional<Printed> printed(const std::string& folder, const Photo& photo, Recall& recall)
{
    const std::optional<RgbImage> image = PhotoFolder::read(folder + "/" + photo.file);
    const std::optional<FeaturePrint> print = PrintMaker::printOf(image ? thumbnail(*image) : RgbImage{});
    if (!print) {
        std::printf("no print: %s\n", photo.file.c_str());
        return std::nullopt;
    }
    ChangedCopies::Random random(static_cast<unsigned>(image->width * 7919 + image->height));
    for (const ChangedCopies::Change& change : ChangedCopies::all()) {
        const RgbImage changed = change.apply(*image, random);
        const auto copy = PrintMaker::printOf(thumbnail(changed));
        Share& share = recall[photo.kind][change.name];
        ++share.all;
        const bool isFound = copy && distance(*print, *copy) < kNearDuplicate &&
                             (!isPage(photo) || PageCheck::isSamePage(*image, changed));
        share.found += isFound ? 1 : 0;
    }
    return Printed{.photo = photo, .print = *print};
}

void printRecall(Recall& recall)
{
    std::printf("\nRecall of changes, per kind\n%-16s", "");
    for (const auto& [kind, shares] : recall)
        std::printf("%13s", kind.c_str());
    for (const ChangedCopies::Change& change : ChangedCopies::all()) {
        std::printf("\n%-16s", change.name);
        for (auto& [kind, shares] : recall)
            std::printf("%13.3f", static_cast<double>(shares[change.name].found) / shares[change.name].all);
    }
    std::printf("\n");
}

/// Frames of one burst are named alike up to their number.
std::string pairKind(const Photo& one, const Photo& other)
{
    if (one.kind != other.kind)
        return "of two kinds";
    if (one.kind != "burst")
        return one.kind;
    const auto group = [](const Photo& photo) { return photo.file.substr(0, photo.file.rfind('_')); };
    return group(one) == group(other) ? "one burst (should join)" : "two bursts of one camera";
}

bool isSameCloselySeen(const std::string& folder, const Photo& one, const Photo& other)
{
    if (!isPage(one) && !isPage(other))
        return true;
    const auto first = PhotoFolder::read(folder + "/" + one.file);
    const auto second = PhotoFolder::read(folder + "/" + other.file);
    return first && second && PageCheck::isSamePage(*first, *second);
}

void printPairs(const std::string& folder, const std::vector<Printed>& all)
{
    std::map<std::string, Share> shares;
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t j = i + 1; j < all.size(); ++j) {
            const float distance = orlen::distance(all[i].print, all[j].print);
            Share& share = shares[pairKind(all[i].photo, all[j].photo)];
            ++share.all;
            if (distance >= kNearDuplicate || !isSameCloselySeen(folder, all[i].photo, all[j].photo))
                continue;
            ++share.found;
            if (all[i].photo.kind != "burst" || all[j].photo.kind != "burst")
                std::printf("  %.3f %s %s\n", static_cast<double>(distance), all[i].photo.file.c_str(),
                            all[j].photo.file.c_str());
        }
    }
    std::printf("\nPairs of different pictures that are joined\n");
    for (const auto& [kind, share] : shares)
        std::printf("%-26s %4d of %6d  %.5f\n", kind.c_str(), share.found, share.all,
                    static_cast<double>(share.found) / share.all);
}

} // namespace

void PrintMetrics::report(const std::string& folder, const std::vector<Photo>& photos)
{
    Recall recall;
    std::vector<Printed> all;
    for (const Photo& photo : photos) {
        if (std::optional<Printed> one = printed(folder, photo, recall))
            all.push_back(std::move(*one));
    }
    printRecall(recall);
    const auto start = std::chrono::steady_clock::now();
    printPairs(folder, all);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf("all pairs of %zu prints: %.2f s\n", all.size(), took.count());
}

} // namespace orlen
