#include "tools/advice/OldSnaps.h"

#include "platform/files/FileContent.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>

namespace orlen::OldSnaps {

namespace {

struct Image {
    std::string name;
    int revision = 0;
};

std::optional<int> revisionOf(std::string_view text)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 1)
        return std::nullopt;
    return number;
}

/// Reads "name_revision.snap"; nothing for builds of the user's own, whose revisions are no numbers. Names
/// become part of a command that users copy to a terminal.
std::optional<Image> imageOf(std::string_view file)
{
    constexpr std::string_view kSuffix = ".snap";
    constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyz0123456789-_";
    if (!file.ends_with(kSuffix))
        return std::nullopt;
    file.remove_suffix(kSuffix.size());
    const std::size_t split = file.rfind('_');
    if (split == std::string_view::npos || split == 0)
        return std::nullopt;
    const std::string_view name = file.substr(0, split);
    const auto revision = revisionOf(file.substr(split + 1));
    if (!revision || name.front() == '-' || name.find_first_not_of(kPlain) != std::string_view::npos)
        return std::nullopt;
    return Image{std::string(name), *revision};
}

/// The revision in use, which is not the newest after going back to an older one; 0 if unknown.
int currentRevision(const Places& places, const std::string& name)
{
    for (const char* mounts : {"/snap/", "/var/lib/snapd/snap/"}) {
        const std::string link = places.systemRoot + mounts + name + "/current";
        const auto end = linkEnd(link);
        if (end.ok() && end.value() != link)
            return revisionOf(PathText::lastComponent(end.value())).value_or(0);
    }
    return 0;
}

} // namespace

AdviceFound find(const Places& places)
{
    const std::string folder = places.systemRoot + "/var/lib/snapd/snaps";
    std::map<std::string, std::vector<int>> revisions;
    for (const std::string& file : listNames(folder)) {
        if (const auto image = imageOf(file))
            revisions[image->name].push_back(image->revision);
    }
    AdviceFound found;
    for (auto& [name, all] : revisions) {
        std::sort(all.begin(), all.end());
        const int current = currentRevision(places, name);
        for (const int revision : all) {
            if (revision == all.back() || revision == current)
                continue;
            const std::string number = std::to_string(revision);
            found.paths.push_back(PathText::join(folder, name).append("_").append(number).append(".snap"));
            found.command.append(found.command.empty() ? "" : " && ");
            found.command.append("sudo snap remove ").append(name).append(" --revision=").append(number);
        }
    }
    return found;
}

} // namespace orlen::OldSnaps
