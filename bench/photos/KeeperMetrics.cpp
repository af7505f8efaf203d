// Measures which of two copies of a picture is kept, on a folder of labelled ones: keeper_metrics FOLDER
// [PART]. FOLDER is as for photo_metrics; PART is one of the reports.

#include "PhotoFolder.h"
#include "PictureCopies.h"
#include "platform/images/PixelBuffer.h"
#include "recognition/ImageDecoder.h"
#include "recognition/ImageServer.h"
#include "scan/photos/PhotoGroups.h"
#include "scan/photos/PrintDistance.h"
#include "scan/photos/SamePicture.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <map>

namespace orlen {

namespace {

using PictureCopies::Camera;
using PictureCopies::Kind;

constexpr std::size_t kPictures = 20;

std::optional<PhotoInfo> analysed(const std::string& bytes)
{
    const auto file = PixelBuffer::ofSize(bytes.size());
    if (bytes.empty() || !file.ok())
        return std::nullopt;
    const auto* first = reinterpret_cast<const std::uint8_t*>(bytes.data());
    if (!PixelBuffer::write(file.value().get(), {first, bytes.size()}))
        return std::nullopt;
    const auto analysis = ImageServer::analysis(file.value().get());
    if (!analysis)
        return std::nullopt;
    Cand cand;
    cand.size = static_cast<std::int64_t>(bytes.size());
    return PhotoInfo{cand,
                     analysis->print,
                     analysis->sharpness,
                     analysis->labels,
                     analysis->width,
                     analysis->height,
                     analysis->traits};
}

/// Evenly over all pictures of the folder that are no sequences.
std::vector<RgbImage> chosen(const std::string& folder)
{
    auto photos = PhotoFolder::photosOf(folder);
    std::erase_if(photos, [](const auto& photo) { return photo.kind == "burst" || photo.kind == "street"; });
    std::vector<RgbImage> images;
    for (std::size_t i = 0; i < kPictures; ++i) {
        if (auto image = PhotoFolder::read(folder + "/" + photos[i * photos.size() / kPictures].file))
            images.push_back(std::move(*image));
    }
    return images;
}

struct Tally {
    int kept = 0;   ///< the original, or a copy as good
    int joined = 0; ///< in one set
    int copies = 0; ///< of those, told from other shots
    int made = 0;
    float least = 9; ///< difference of the copies
    float most = 0;
};

void judge(const PhotoInfo& original, const PhotoInfo& copy, bool isAsGood, Tally& tally)
{
    const auto groups = PhotoGroups::of({copy, original}, {});
    tally.copies += SamePicture::isCopy(original, copy) ? 1 : 0;
    tally.joined += groups.empty() ? 0 : 1;
    tally.kept += groups.empty() || groups.front().keeper == 1 || isAsGood ? 1 : 0;
    if (original.print && copy.print) {
        const float difference = SamePicture::difference(original.print->tile(), copy.print->tile());
        tally.least = std::min(tally.least, difference);
        tally.most = std::max(tally.most, difference);
    }
}

/// What tells the original from its copies, besides the picture.
struct Evidence {
    const char* name;
    Camera camera;
    bool hasTimes; ///< a copy is younger
};

void reportKept(const std::vector<RgbImage>& images, const Evidence& evidence)
{
    std::map<const Kind*, Tally> tallies;
    for (const RgbImage& image : images) {
        const std::string bytes = PictureCopies::original(image, evidence.camera);
        auto original = analysed(bytes);
        if (original && evidence.hasTimes)
            original->cand.modified = TimePoint{std::chrono::hours{24}};
        for (const Kind& kind : PictureCopies::all()) {
            auto copy = analysed(PictureCopies::copied(bytes, kind));
            if (copy && evidence.hasTimes)
                copy->cand.modified = TimePoint{std::chrono::hours{48}};
            Tally& tally = tallies[&kind];
            tally.made += 1;
            if (original && copy)
                judge(*original, *copy, kind.isAsGood && evidence.camera == Camera::unknown, tally);
            else
                tally.kept += 1; // What is no picture is never kept.
        }
    }
    std::printf("\n%-28s kept joined copies  of   difference\n", evidence.name);
    int kept = 0;
    for (const Kind& kind : PictureCopies::all()) {
        const Tally& tally = tallies[&kind];
        kept += tally.kept;
        std::printf("%-28s %4d %6d %6d %3d   %.3f to %.3f\n", kind.name, tally.kept, tally.joined,
                    tally.copies, tally.made, static_cast<double>(tally.least),
                    static_cast<double>(tally.most));
    }
    std::printf("per kind, of %zu: %.2f\n", images.size(),
                static_cast<double>(kept) / static_cast<double>(PictureCopies::all().size()));
}

void reportSharpness(const std::vector<RgbImage>& images)
{
    constexpr Kind kFormats[] = {{"BMP", "", ".bmp"},
                                 {"WebP 100", "", ".webp[Q=100]"},
                                 {"lossless WebP", "", ".webp[lossless]"},
                                 {"JPEG 98", "", ".jpg[Q=98]"},
                                 {"TIFF", "", ".tif"}};
    std::printf("\nSharpness against the same pixels in PNG\n");
    for (const char* scale : {"", "0.98", "0.6"}) {
        for (const Kind& format : kFormats) {
            double least = 9;
            double most = 0;
            for (const RgbImage& image : images) {
                const std::string png = PictureCopies::copied(PictureCopies::original(image, Camera::unknown),
                                                              {"", scale, ".png"});
                const auto one = analysed(png);
                const auto other = analysed(PictureCopies::copied(png, format));
                const double ratio = one && other ? other->sharpness / one->sharpness : 1;
                least = std::min(least, ratio);
                most = std::max(most, ratio);
            }
            std::printf("%-6s %-16s %.3f to %.3f\n", scale, format.name, least, most);
        }
    }
}

void reportCaptions(const std::vector<RgbImage>& images)
{
    std::printf("\n%-28s plain kept  joined  copies  of\n", "with something drawn over it");
    for (const Kind& kind : PictureCopies::captioned()) {
        Tally tally;
        for (const RgbImage& image : images) {
            const std::string bytes = PictureCopies::original(image, Camera::unknown);
            const auto original = analysed(bytes);
            const auto captioned = analysed(PictureCopies::copied(bytes, kind));
            tally.made += 1;
            if (original && captioned)
                judge(*original, *captioned, false, tally);
        }
        std::printf("%-28s %10d %7d %7d %3d\n", kind.name, tally.kept, tally.joined, tally.copies,
                    tally.made);
    }
}

bool isAnyDrawnOver(const PhotoInfo& one, const PhotoInfo& other)
{
    const SamePicture::Frame first(one);
    const SamePicture::Frame second(other);
    return SamePicture::isDrawnOver(first, second) || SamePicture::isDrawnOver(second, first);
}

/// Frames of a burst, and a picture beside the one it was captioned from, are no copies.
void reportShots(const std::string& folder)
{
    std::vector<std::pair<std::string, PhotoInfo>> all;
    for (const auto& photo : PhotoFolder::photosOf(folder)) {
        if (photo.kind != "burst" && photo.kind != "meme" && photo.kind != "photo" &&
            photo.kind != "illustration")
            continue;
        const auto image = PhotoFolder::read(folder + "/" + photo.file);
        const auto info = image ? analysed(PictureCopies::original(*image, Camera::unknown)) : std::nullopt;
        if (info && info->print)
            all.emplace_back(photo.file, *info);
    }
    std::printf("\nDifference of shots that look alike\n");
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t j = i + 1; j < all.size(); ++j) {
            const FeaturePrint& one = *all[i].second.print;
            const FeaturePrint& other = *all[j].second.print;
            const float difference = SamePicture::difference(one.tile(), other.tile());
            if (difference < 0.6F || distance(one, other) < 0.32F)
                std::printf("%.3f %s %s%s\n", static_cast<double>(difference), all[i].first.c_str(),
                            all[j].first.c_str(),
                            isAnyDrawnOver(all[i].second, all[j].second) ? ", drawn over" : "");
        }
    }
}

} // namespace

} // namespace orlen

int main(int argc, char** argv)
{
    if (argc != 2 && argc != 3) {
        std::fprintf(stderr, "usage: keeper_metrics FOLDER [kept|sharpness|captions|shots]\n");
        return 2;
    }
    orlen::ImageDecoder::prepare();
    const std::vector<orlen::RgbImage> images = orlen::chosen(argv[1]);
    if (images.empty()) {
        std::fprintf(stderr, "%s/labels.csv lists no pictures.\n", argv[1]);
        return 1;
    }
    const std::string_view part = argc == 3 ? argv[2] : "";
    if (part.empty() || part == "kept") {
        using orlen::PictureCopies::Camera;
        orlen::reportKept(images, {"original with camera data", Camera::noted, false});
        orlen::reportKept(images, {"no camera data at all", Camera::unknown, true});
        orlen::reportKept(images, {"neither that nor times", Camera::unknown, false});
    }
    if (part.empty() || part == "sharpness")
        orlen::reportSharpness(images);
    if (part.empty() || part == "captions")
        orlen::reportCaptions(images);
    if (part.empty() || part == "shots")
        orlen::reportShots(argv[1]);
    return 0;
}
