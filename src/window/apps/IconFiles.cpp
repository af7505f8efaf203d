#include "window/apps/IconFiles.h"

#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace orlen::IconFiles {

namespace {

constexpr std::array kSizes{16, 22, 24, 32, 36, 48, 64, 72, 96, 128, 192, 256, 512};
constexpr std::array<std::string_view, 3> kSuffixes{"svg", "png", "xpm"};

/// First those that need no enlarging, smallest first, then the others, largest first.
std::vector<int> sizesFor(int pixels)
{
    std::vector<int> sizes(kSizes.begin(), kSizes.end());
    const auto enough = std::find_if(sizes.begin(), sizes.end(), [&](int size) { return size >= pixels; });
    std::reverse(sizes.begin(), enough);
    std::rotate(sizes.begin(), enough, sizes.end());
    return sizes;
}

std::vector<std::string> dataFolders()
{
    const Places& places = Places::current();
    std::vector<std::string> folders = places.data;
    // Not every session's environment includes the folders Flatpak exports.
    for (const std::string& exports : places.expand("{DATA}/flatpak/exports/share"))
        folders.push_back(exports);
    folders.insert(folders.end(), places.sharedData.begin(), places.sharedData.end());
    folders.push_back(places.systemRoot + "/var/lib/flatpak/exports/share");
    return folders;
}

std::string withoutSuffix(std::string_view icon)
{
    // A theme name may itself contain dots.
    const bool isFileName = std::find(kSuffixes.begin(), kSuffixes.end(),
                                      PathText::asciiLower(PathText::extension(icon))) != kSuffixes.end();
    return std::string(isFileName ? PathText::stem(icon) : icon);
}

std::string joined(std::initializer_list<std::string_view> parts)
{
    std::string text;
    for (const std::string_view part : parts)
        text += part;
    return text;
}

} // namespace

std::vector<std::string> candidates(std::string_view icon, int pixels)
{
    if (icon.starts_with('/'))
        return {std::string(icon)};
    if (icon.empty() || icon.find('/') != std::string_view::npos)
        return {};
    const std::string name = withoutSuffix(icon);
    std::vector<std::string> paths;
    for (const std::string& folder : dataFolders()) {
        paths.push_back(joined({folder, "/icons/hicolor/scalable/apps/", name, ".svg"}));
        for (const int size : sizesFor(pixels)) {
            const std::string text = std::to_string(size);
            paths.push_back(joined({folder, "/icons/hicolor/", text, "x", text, "/apps/", name, ".png"}));
        }
        for (const std::string_view place : {"/icons/", "/pixmaps/"}) {
            for (const std::string_view suffix : kSuffixes)
                paths.push_back(joined({folder, place, name, ".", suffix}));
        }
    }
    return paths;
}

bool isSystemDrawing(std::string_view file)
{
    return PathText::isAtOrBelow(file, Places::current().systemRoot + "/usr/share") &&
           PathText::asciiLower(PathText::extension(file)) == kSuffixes.front();
}

} // namespace orlen::IconFiles
