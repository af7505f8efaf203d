#include "tools/advice/Advice.h"

#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "scan/UnreadableFolders.h"
#include "scan/tree/CurrentMounts.h"
#include "tools/advice/AdviceSums.h"
#include "tools/advice/AdviceTopics.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace orlen::Advice {

namespace {

constexpr std::chrono::days kOldAge{10};

/// A topic of which there is something on this machine.
struct Present {
    const AdviceTopic* topic = nullptr;
    std::vector<std::string> places; ///< those that exist
    std::vector<std::string> paths;  ///< what counts
    std::string command;
    bool isOnHomeDisk = true;
};

bool isInstalled(std::string_view program, const Places& places)
{
    if (program.empty())
        return true;
    constexpr std::string_view kFolders[] = {
        "{ROOT}/usr/bin/",  "{ROOT}/usr/local/bin/", "{ROOT}/usr/sbin/",     "{ROOT}/bin/",
        "{ROOT}/snap/bin/", "{H}/.local/bin/",       "{H}/.nix-profile/bin/"};
    return std::any_of(std::begin(kFolders), std::end(kFolders), [&](std::string_view folder) {
        return exists(places.expand(folder).front().append(program));
    });
}

/// What lies in memory or on another computer fills no disk of this one.
bool isOnDisk(const std::string& path, const Places& places, const MountTable& mounts)
{
    const Mount* mount = mounts.holding(path);
    return mount == nullptr || mount->kind != MountClass::foreign ||
           mounts.isSameFileSystem(path, places.resolvedHome);
}

/// For a POSIX shell.
std::string shellWord(const std::string& path)
{
    constexpr std::string_view kPlain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/._-+,:@%";
    if (path.find_first_not_of(kPlain) == std::string::npos)
        return path;
    std::string word = "'";
    for (const char c : path)
        word += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return word + '\'';
}

Message textOf(const AdviceTopic& topic)
{
    if (topic.furtherCommand.empty())
        return topic.text;
    return {topic.text, {{"command", std::string(topic.furtherCommand)}}};
}

void replace(std::string& text, std::string_view word, const std::string& with)
{
    if (const std::size_t at = text.find(word); at != std::string::npos)
        text.replace(at, word.size(), with);
}

std::string commandOf(const AdviceTopic& topic, const std::vector<std::string>& folders, const Places& places)
{
    std::string words;
    for (const std::string& folder : folders)
        words += (words.empty() ? "" : " ") + shellWord(folder);
    std::string command(topic.command);
    replace(command, "{PLACES}", words);
    replace(command, "{UID}", std::to_string(places.user));
    return command;
}

/// Nothing to say unless there are places, and in them what the topic looks for.
Present presentOf(const AdviceTopic& topic, const Places& places, const MountTable& mounts)
{
    Present present{&topic};
    for (const std::string_view pattern : topic.places) {
        for (const std::string& place :
             pattern.empty() ? std::vector<std::string>() : places.expand(pattern)) {
            if (PathText::isValidUtf8(place) && isRealFolder(place) &&
                isOnDisk(resolved(place), places, mounts))
                present.places.push_back(place);
        }
    }
    present.paths = present.places;
    if (present.places.empty() || !isInstalled(topic.program, places))
        return {};
    present.command = commandOf(topic, present.places, places);
    present.isOnHomeDisk = mounts.isSameFileSystem(resolved(present.places.front()), places.resolvedHome);
    if (topic.find != nullptr) {
        AdviceFound found = topic.find(places);
        present.paths = std::move(found.paths);
        if (!found.command.empty())
            present.command = std::move(found.command);
    }
    return present.paths.empty() ? Present() : present;
}

std::vector<Present> allPresent(const Places& places, const MountTable& mounts)
{
    std::vector<Present> all;
    for (const AdviceTopic& topic : adviceTopics()) {
        const bool isSaid =
            std::ranges::any_of(all, [&](const Present& other) { return other.topic->topic == topic.topic; });
        Present present = isSaid ? Present() : presentOf(topic, places, mounts);
        if (present.topic != nullptr)
            all.push_back(std::move(present));
    }
    return all;
}

/// Which folders are measured on their own, even where one lies in another, as the journal in the logs.
PathMarks marksOf(const std::vector<Present>& all)
{
    PathMarks marks;
    for (const Present& present : all) {
        for (const std::string& path : present.paths)
            marks.mark(path, PathMarks::kSkip);
    }
    return marks;
}

AdviceItem::Known knownOf(AdviceTopic::Count count, const std::vector<TreeRoot>& roots,
                          const UnreadableFolders& unreadable)
{
    using Known = AdviceItem::Known;
    if (count == AdviceTopic::Count::nothing)
        return Known::shared;
    // What others keep beside the user's own files does not count.
    if (unreadable.count() == 0 || count == AdviceTopic::Count::oldOwnFiles)
        return Known::all;
    const bool isAnyOpen =
        std::ranges::any_of(roots, [](const TreeRoot& root) { return isListable(root.path); });
    return isAnyOpen ? Known::part : Known::nothing;
}

/// Measures what counts for a topic, into its advice.
AdviceItem measured(Present present, AdviceSums& sums, const PathMarks& marks, const MountTable& mounts,
                    const std::stop_token& stop)
{
    std::vector<TreeRoot> roots;
    for (const std::string& path : present.paths) {
        const auto status = statusOf(path);
        if (status.ok() && status.value().type == FileType::folder)
            roots.push_back({path});
        else if (status.ok() && status.value().type == FileType::regular)
            sums.add({path.c_str(), status.value()});
    }
    UnreadableFolders unreadable;
    TreeScanOptions options;
    options.crossing = Crossing::localDisks;
    options.marks = &marks;
    options.unreadable = &unreadable;
    if (present.topic->count != AdviceTopic::Count::nothing)
        scanTrees(roots, sums, mounts, options, stop);

    AdviceItem item;
    item.topic = present.topic->topic;
    item.title = present.topic->title;
    item.places = std::move(present.places);
    item.size = sums.sum();
    item.known = knownOf(present.topic->count, roots, unreadable);
    item.isOnHomeDisk = present.isOnHomeDisk;
    item.text = textOf(*present.topic);
    item.command = std::move(present.command);
    return item;
}

} // namespace

std::vector<AdviceItem> collect(TimePoint now, const std::stop_token& stop)
{
    const Places& places = Places::current();
    const auto mounts = CurrentMounts::table();
    std::vector<Present> all = allPresent(places, *mounts);
    const PathMarks marks = marksOf(all);
    std::vector<AdviceItem> items;
    for (Present& present : all) {
        const std::int64_t least = present.topic->least;
        AdviceSums sums(present.topic->count, places.user, now - kOldAge);
        AdviceItem item = measured(std::move(present), sums, marks, *mounts, stop);
        // What cannot be looked into at all may be anything.
        if (item.size >= least || item.known == AdviceItem::Known::nothing)
            items.push_back(std::move(item));
    }
    std::stable_sort(items.begin(), items.end(),
                     [](const AdviceItem& a, const AdviceItem& b) { return a.size > b.size; });
    return items;
}

const AdviceItem* forPath(std::span<const AdviceItem> advice, std::string_view path)
{
    const AdviceItem* closest = nullptr;
    std::size_t length = 0;
    for (const AdviceItem& item : advice) {
        for (const std::string& place : item.places) {
            if (place.size() > length && PathText::isAtOrBelow(path, place)) {
                closest = &item;
                length = place.size();
            }
        }
    }
    return closest;
}

std::vector<AdviceItem> forCategory(std::span<const AdviceItem> advice, OrlenCategory category,
                                    std::span<const CategoryFolder> folders)
{
    std::vector<AdviceItem> chosen;
    for (const AdviceItem& item : advice) {
        const CategoryFolder* holder = nullptr;
        for (const CategoryFolder& folder : folders) {
            if (PathText::isAtOrBelow(item.places.front(), folder.path) &&
                (holder == nullptr || folder.path.size() > holder->path.size()))
                holder = &folder;
        }
        if (category == (holder == nullptr ? OrlenCategory::system : holder->category))
            chosen.push_back(item);
    }
    return chosen;
}

} // namespace orlen::Advice
