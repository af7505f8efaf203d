#include "insight/reader/StoredThings.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/Names.h"
#include "insight/reader/PathHits.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <functional>
#include <span>
#include <string_view>
#include <utility>

namespace orlen::AskReader {

namespace {

using Number = HomeFiles::Number;

bool holdsFile(const HomeFiles& home, Number folder, std::string_view name)
{
    const HomeFiles::Range files = home.filesIn(folder);
    for (Number file = files.first; file < files.last; ++file) {
        if (home.fileName(file) == name)
            return true;
    }
    return false;
}

/// A folder that a build makes, told by its name and by what stands beside it.
struct BuildFolder {
    std::string_view name;
    std::string_view beside;
};

constexpr BuildFolder kBuildFolders[] = {
    {"target", "Cargo.toml"},         {"target", "pom.xml"},       {"build", "CMakeLists.txt"},
    {"build", "build.gradle"},        {"build", "meson.build"},    {"build", "build.gradle.kts"},
    {"build", "package.json"},        {"build", "setup.py"},       {"build", "pyproject.toml"},
    {"dist", "package.json"},         {"dist", "setup.py"},        {"dist", "pyproject.toml"},
    {"node_modules", "package.json"}, {".gradle", "build.gradle"}, {".next", "package.json"},
};

bool isBuildOutput(const HomeFiles& home, Number folder)
{
    const std::string_view name = home.folderName(folder);
    return std::ranges::any_of(kBuildFolders, [&](const BuildFolder& each) {
        if (each.name != name)
            return false;
        const Number beside = home.folder(folder).parent;
        // The parts of a Gradle project need not hold a file for it.
        const bool isOfPart = name == "build" && each.beside.starts_with("build.gradle");
        return holdsFile(home, beside, each.beside) ||
               (isOfPart && holdsFile(home, home.folder(beside).parent, each.beside));
    });
}

bool isEnvironment(const HomeFiles& home, Number folder)
{
    return holdsFile(home, folder, "pyvenv.cfg");
}

/// The topmost folders that fit.
std::vector<Stored> foldersThat(const HomeFiles& home, bool fits(const HomeFiles&, Number))
{
    std::vector<Stored> found;
    for (Number each = 1; each < home.folderCount();) {
        const bool isOne = fits(home, each);
        if (isOne)
            found.push_back({home.folderPath(each), home.folder(each).bytes});
        const bool isTrash = home.folderName(each) == "Trash";
        each = isOne || isTrash ? home.foldersFrom(each).last : each + 1;
    }
    return found;
}

void addFolder(std::vector<Stored>& found, const HomeFiles& home, std::string_view pattern)
{
    for (const std::string& path : Places::current().expand(pattern)) {
        if (const auto folder = home.folderAt(path))
            found.push_back({path, home.folder(*folder).bytes});
    }
}

/// The files directly in a folder, and the folders.
void addContents(std::vector<Stored>& found, const HomeFiles& home, std::string_view pattern)
{
    for (const std::string& path : Places::current().expand(pattern)) {
        const auto folder = home.folderAt(path);
        if (!folder)
            continue;
        const HomeFiles::Range files = home.filesIn(*folder);
        for (Number file = files.first; file < files.last; ++file)
            found.push_back({home.filePath(file), home.file(file).bytes});
        const Number last = home.foldersFrom(*folder).last;
        for (Number each = *folder + 1; each < last; each = home.foldersFrom(each).last)
            found.push_back({home.folderPath(each), home.folder(each).bytes});
    }
}

bool isDiskOfMachine(std::string_view name)
{
    constexpr std::string_view kEndings[] = {"qcow2", "vdi", "vmdk", "vhd", "vhdx"};
    const std::string ending = PathText::asciiLower(PathText::extension(name));
    return std::ranges::find(kEndings, ending) != std::end(kEndings);
}

/// What programs keep their machines in, then disks that lie elsewhere.
std::vector<Stored> machines(const HomeFiles& home)
{
    std::vector<Stored> found;
    for (const std::string_view pattern :
         {"{DATA}/gnome-boxes/images", "{DATA}/libvirt/images", "{H}/VirtualBox VMs", "{H}/vmware"})
        addContents(found, home, pattern);
    std::vector<Stored> devices;
    addContents(devices, home, "{H}/.android/avd");
    std::erase_if(devices, [](const Stored& each) { return !each.path.ends_with(".avd"); });
    std::ranges::move(devices, std::back_inserter(found));
    std::erase_if(found, [](const Stored& each) { return each.bytes == 0; });
    const std::size_t known = found.size();
    for (Number file = 0; file < home.fileCount(); ++file) {
        if (!isDiskOfMachine(home.fileName(file)))
            continue;
        std::string path = home.filePath(file);
        const bool isKnown =
            std::any_of(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(known),
                        [&](const Stored& each) { return PathText::isAtOrBelow(path, each.path); });
        if (!isKnown && path.find("/Trash/") == std::string::npos)
            found.push_back({std::move(path), home.file(file).bytes});
    }
    return found;
}

/// What the scan says about what a line is of, or that it is protected.
Message withRating(Message line, std::string_view path, const Hit& hit, const AskContext& context)
{
    if (hit.finding != nullptr)
        return {InsightTexts::kListedLine,
                {{"line", within(std::move(line))},
                 {"title", within(hit.finding->title)},
                 {"rating", within(label(hit.finding->effectiveRating(*hit.entry)))}}};
    const bool isProtected = context.protection && context.protection(path) != Protection::none;
    if (!isProtected || !hitsBelow(path, context).empty())
        return line;
    return {InsightTexts::kProtectedLine, {{"line", within(std::move(line))}}};
}

std::vector<Stored> ofWine(const HomeFiles& home)
{
    std::vector<Stored> found;
    for (const std::string_view pattern :
         {"{H}/.wine", "{DATA}/wineprefixes", "{DATA}/bottles", "{H}/.var/app/com.usebottles.bottles"})
        addFolder(found, home, pattern);
    return found;
}

} // namespace

std::optional<std::vector<Stored>> storedOf(const Subject& subject, const AskContext& context)
{
    if (context.home == nullptr)
        return std::nullopt;
    const HomeFiles& home = *context.home;
    std::vector<Stored> found;
    switch (subject.id) {
    case SubjectID::virtualMachines:
        found = machines(home);
        break;
    case SubjectID::wine:
        found = ofWine(home);
        break;
    case SubjectID::buildOutput:
        found = foldersThat(home, isBuildOutput);
        break;
    case SubjectID::environments:
        found = foldersThat(home, isEnvironment);
        break;
    default:
        return std::nullopt;
    }
    std::ranges::stable_sort(found, std::greater{}, &Stored::bytes);
    return found;
}

std::optional<Answer> listOfStored(const Question& question, const Subject& subject,
                                   const AskContext& context)
{
    constexpr std::size_t kShown = 5;
    auto found = storedOf(subject, context);
    if (!found)
        return std::nullopt;
    const Place files{"files", within(subject.name)};
    if (found->empty())
        return Answer{Message{InsightTexts::kNoFilesThere, {files}}, {}};
    Answer answer;
    std::int64_t bytes = 0;
    for (const Stored& each : *found)
        bytes = checkedAdd(bytes, each.bytes);
    const bool isSmallest = question.senses.has(Sense::smallest);
    if (isSmallest)
        std::ranges::stable_sort(*found, {}, &Stored::bytes);
    const Message heading = isSmallest && found->size() > 1 ? InsightTexts::kTheSmallest : Message();
    std::vector<Message> lines{AskText::sentences(
        {Message{InsightTexts::kFilesThere, {files, {"count", std::ssize(*found)}, {"size", Bytes{bytes}}}},
         heading})};
    for (const Stored& each : std::span(*found).first(std::min(found->size(), kShown)))
        answer.paths.push_back(each.path);
    const std::vector<Hit> hits = hitsAround(answer.paths, context);
    for (std::size_t i = 0; i < hits.size(); ++i) {
        const Stored& each = (*found)[i];
        lines.push_back(
            withRating({InsightTexts::kDownload, {{"name", tilde(each.path)}, {"size", Bytes{each.bytes}}}},
                       each.path, hits[i], context));
    }
    if (found->size() > kShown)
        lines.push_back(
            {InsightTexts::kMoreFit, {{"count", static_cast<std::int64_t>(found->size() - kShown)}}});
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

Message foldersIn(std::string_view pattern, Sizes first, const AskContext& context)
{
    const std::vector<std::string> paths = Places::current().expand(pattern);
    const auto folder =
        context.home == nullptr || paths.empty() ? std::nullopt : context.home->folderAt(paths.front());
    if (!folder)
        return {};
    const HomeFiles& home = *context.home;
    std::vector<Stored> found;
    const Number last = home.foldersFrom(*folder).last;
    for (Number each = *folder + 1; each < last; each = home.foldersFrom(each).last)
        found.push_back({home.folderPath(each), home.folder(each).bytes});
    std::ranges::stable_sort(found, [&](const Stored& one, const Stored& other) {
        return first == Sizes::smallest ? one.bytes < other.bytes : one.bytes > other.bytes;
    });
    std::vector<Message> lines(1);
    for (const Stored& each : found)
        lines.push_back({InsightTexts::kDownload, {{"name", tilde(each.path)}, {"size", Bytes{each.bytes}}}});
    if (lines.size() == 1)
        return {};
    const Message files{InsightTexts::kFilesIn,
                        {{"files", within(InsightTexts::kFolders)}, {"folder", tilde(paths.front())}}};
    lines.front() = {InsightTexts::kFilesThere,
                     {{"files", within(files)},
                      {"count", std::ssize(lines) - 1},
                      {"size", Bytes{home.folder(*folder).bytes}}}};
    return AskText::lines(std::move(lines));
}

Answer containers(const AskContext& context)
{
    std::vector<Stored> found;
    if (context.home != nullptr) {
        for (const std::string_view pattern : {"{DATA}/containers", "{DATA}/docker"})
            addFolder(found, *context.home, pattern);
    }
    std::vector<Message> lines;
    lines.reserve(found.size() + 1);
    for (const Stored& each : found)
        lines.push_back(
            {InsightTexts::kFolderTakes, {{"folder", tilde(each.path)}, {"size", Bytes{each.bytes}}}});
    lines.emplace_back(InsightTexts::kContainers);
    return {AskText::lines(std::move(lines)), {}};
}

} // namespace orlen::AskReader
