#include "window/preview/PictureReader.h"

#include "platform/files/FileStatus.h"
#include "platform/images/ImageWorkers.h"
#include "platform/text/PathText.h"
#include "window/preview/KeptThumbnails.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace orlen::PictureReader {

namespace {

constexpr std::array<std::string_view, 12> kExtensions{"avif", "bmp", "gif", "heic", "heif", "jpeg",
                                                       "jpg",  "jxl", "png", "tif",  "tiff", "webp"};

constexpr std::array<std::string_view, 30> kArchives{
    "7z",  "a",    "apk", "ar",  "bz2",  "cab", "cbr", "cbz", "cpio", "crate",
    "deb", "epub", "gem", "iso", "jar",  "lha", "lzh", "rar", "rpm",  "tar",
    "tbz", "tbz2", "tgz", "txz", "tzst", "war", "whl", "xpi", "xz",   "zip"};
constexpr std::array<std::string_view, 43> kMedia{
    "aac", "ac3",  "aif", "aiff", "amr", "ape",  "caf", "dts", "flac", "m4a", "m4b",
    "mka", "mp3",  "mpc", "oga",  "ogg", "opus", "spx", "tta", "wav",  "wma", "wv",
    "3gp", "asf",  "avi", "divx", "flv", "m2ts", "m2v", "m4v", "mkv",  "mov", "mp4",
    "mpe", "mpeg", "mpg", "mts",  "ogm", "ogv",  "ts",  "vob", "webm", "wmv"};
/// Documents, drawings, and photos as cameras have taken them.
constexpr std::array<std::string_view, 33> kDrawn{
    "ai",   "arw", "cbr", "cbz", "cr2", "cr3", "djvu", "dng", "doc", "docx", "eps",
    "epub", "nef", "odg", "odp", "ods", "odt", "orf",  "pdf", "pps", "ppt",  "pptx",
    "ps",   "psd", "raf", "rtf", "rw2", "svg", "svgz", "xcf", "xls", "xlsx", "xps"};
/// Packed, and perhaps an archive: told by what stands before.
constexpr std::array<std::string_view, 3> kPacked{"gz", "zst", "lz4"};

ImageWorkers::Options& options()
{
    static ImageWorkers::Options options;
    return options;
}

ImageWorkers& workers()
{
    static ImageWorkers workers(options());
    return workers;
}

QImage imageOf(const RgbImage& pixels)
{
    constexpr qsizetype kBytes = 3;
    const QImage shared(pixels.pixels.data(), pixels.width, pixels.height, pixels.width * kBytes,
                        QImage::Format_RGB888);
    return shared.convertToFormat(QImage::Format_RGB32); // a deep copy, in the format that is drawn
}

PictureBound boundOf(const QSize& bound, Fit fit)
{
    return {{bound.width(), bound.height()},
            fit == Fit::cover ? PictureBound::Fit::cover : PictureBound::Fit::inside};
}

std::optional<Picture> pictureOf(const std::optional<SmallPicture>& picture)
{
    if (!picture)
        return std::nullopt;
    return Picture{imageOf(picture->image), {picture->whole.width, picture->whole.height}};
}

} // namespace

bool looksReadable(std::string_view path)
{
    const std::string extension = PathText::asciiLower(PathText::extension(path));
    return std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
}

bool looksLikeDocument(std::string_view path)
{
    return PathText::asciiLower(PathText::extension(path)) == "pdf";
}

std::optional<Page> page(const std::string& path, const QSize& bound, const std::stop_token& stop)
{
    const auto picture = workers().page(path, {bound.width(), bound.height()}, stop);
    if (!picture)
        return std::nullopt;
    return Page{imageOf(picture->image), {picture->whole.width, picture->whole.height}, picture->pages};
}

bool looksLikeMedia(std::string_view path)
{
    const std::string extension = PathText::asciiLower(PathText::extension(path));
    return std::ranges::find(kMedia, extension) != kMedia.end();
}

std::optional<MediaFacts> media(const std::string& path, const std::stop_token& stop)
{
    return workers().media(path, stop);
}

bool looksLikeArchive(std::string_view path)
{
    const std::string name = PathText::asciiLower(path);
    const std::string_view extension = PathText::extension(name);
    const bool isPacked = std::ranges::find(kPacked, extension) != kPacked.end();
    return isPacked ? name.ends_with(".tar." + std::string(extension))
                    : std::ranges::find(kArchives, extension) != kArchives.end();
}

std::optional<ArchiveContents> archive(const std::string& path, const std::stop_token& stop)
{
    return workers().archive(path, stop);
}

std::optional<Picture> read(const std::string& path, const QSize& bound, Fit fit, const std::stop_token& stop)
{
    return pictureOf(workers().smallPicture(path, boundOf(bound, fit), stop));
}

bool looksThumbnailed(std::string_view path)
{
    const std::string extension = PathText::asciiLower(PathText::extension(path));
    return looksLikeMedia(path) || std::ranges::find(kDrawn, extension) != kDrawn.end();
}

std::optional<Picture> thumbnail(const std::string& path, const QSize& bound, Fit fit,
                                 const std::stop_token& stop)
{
    const auto status = statusOf(path);
    if (!status.ok() || status.value().type != FileType::regular)
        return std::nullopt;
    PictureBound wanted = boundOf(bound, fit);
    wanted.madeOf =
        std::chrono::floor<std::chrono::seconds>(status.value().modified).time_since_epoch().count();
    for (const std::string& file :
         KeptThumbnails::candidates(path, std::max(bound.width(), bound.height()))) {
        if (auto picture = pictureOf(workers().smallPicture(file, wanted, stop)))
            return picture;
    }
    return std::nullopt;
}

std::optional<Picture> readPart(const std::string& path, const QRect& part, const QSize& bound,
                                const std::stop_token& stop)
{
    return pictureOf(workers().smallPicture(path,
                                            {{bound.width(), bound.height()},
                                             PictureBound::Fit::inside,
                                             PixelRect{part.x(), part.y(), part.width(), part.height()}},
                                            stop));
}

std::optional<Traits> traits(const std::string& path, const std::stop_token& stop)
{
    const auto analysis = workers().analyze(path, stop);
    if (!analysis)
        return std::nullopt;
    return Traits{{analysis->width, analysis->height}, analysis->sharpness, analysis->traits.isFromCamera};
}

QImage icon(const std::string& path, const QSize& size)
{
    const auto picture = workers().icon(path, {size.width(), size.height()}, {});
    if (!picture || picture->alpha.empty())
        return {};
    QImage image = imageOf(picture->image);
    const qsizetype width = image.width();
    const QImage alpha(picture->alpha.data(), image.width(), image.height(), width, QImage::Format_Alpha8);
    image.setAlphaChannel(alpha);
    return image;
}

void setRecognizer(const std::string& program)
{
    options().program = program;
}

} // namespace orlen::PictureReader
