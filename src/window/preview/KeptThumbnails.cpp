#include "window/preview/KeptThumbnails.h"

#include "platform/files/FileStatus.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <QCryptographicHash>
#include <QUrl>

#include <algorithm>
#include <array>

namespace orlen::KeptThumbnails {

namespace {

struct Size {
    const char* folder;
    int pixels; ///< of the longer side
};

constexpr std::array<Size, 4> kSizes{{{"normal", 128}, {"large", 256}, {"x-large", 512}, {"xx-large", 1024}}};

/// The names that the desktops give them, which differ in what they escape in an address.
std::vector<std::string> fileNames(const std::string& path)
{
    const auto nameOf = [](const QByteArray& address) {
        return QCryptographicHash::hash(address, QCryptographicHash::Md5).toHex().toStdString() + ".png";
    };
    const QByteArray bytes = QByteArray::fromStdString(path);
    std::vector<std::string> names{nameOf("file://" + bytes.toPercentEncoding("/!$&'()*+,:=@"))};
    const QByteArray other = QUrl::fromLocalFile(QString::fromUtf8(bytes)).toEncoded();
    if (std::string name = nameOf(other); name != names.front())
        names.push_back(std::move(name));
    return names;
}

/// Large enough ones first, from the smallest on, then smaller ones.
std::array<Size, kSizes.size()> bestFirst(int pixels)
{
    auto sizes = kSizes;
    auto* const smaller = std::stable_partition(sizes.begin(), sizes.end(),
                                                [pixels](const Size& size) { return size.pixels >= pixels; });
    std::reverse(smaller, sizes.end());
    return sizes;
}

bool isRealFolder(const std::string& path)
{
    const auto status = statusOf(path);
    return status.ok() && status.value().type == FileType::folder;
}

} // namespace

std::vector<std::string> candidates(const std::string& path, int pixels)
{
    std::vector<std::string> found;
    const std::vector<std::string> names = fileNames(path);
    for (const std::string& folder : Places::current().expand("{CACHE}/thumbnails")) {
        if (!isRealFolder(folder))
            continue;
        for (const Size& size : bestFirst(pixels)) {
            const std::string sized = PathText::join(folder, size.folder);
            if (!isRealFolder(sized))
                continue;
            for (const std::string& name : names) {
                if (std::string file = PathText::join(sized, name); exists(file))
                    found.push_back(std::move(file));
            }
        }
    }
    return found;
}

} // namespace orlen::KeptThumbnails
