#include "insight/reader/WhatItIs.h"

#include "insight/InsightTextsNames.h"
#include "insight/reader/GuardedPlaces.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"
#include "platform/files/Places.h"
#include "platform/text/NamePattern.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace orlen::AskReader {

namespace {

/// What has one of these names. All in lower case.
struct Row {
    std::string_view names; ///< separated by commas; may use "*"; with "/", the folder around it as well
    Text thing;
    std::string_view holding{}; ///< folders of which it has to hold one, separated by commas
    bool isMadeAgain = false;   ///< by the tool that it names
};

// TRANSLATORS: all of these say in a few words what a file or folder is, behind its name and a colon.
constexpr Text kBuildOutput = message("build output of a project; the next build makes it again");
constexpr Text kProgramCaches = message("caches of programs");
constexpr Text kProgramSettings = message("settings of programs");
constexpr Text kProgramData = message("data of programs");
constexpr Text kFlatpakData = message("data of Flatpak applications");
constexpr Text kDatabase = message("database of a program");

constexpr Row kFolders[] = {
    {"node_modules",
     message("packages of a JavaScript project; its package manager installs them again"),
     {},
     true},
    {".venv,venv,virtualenv", message("Python environment with the packages of a project"), {}, true},
    {"__pycache__", message("compiled Python files; Python makes them again"), {}, true},
    {"target", kBuildOutput, "debug,release,classes", true},
    {"build,dist", kBuildOutput, "CMakeFiles,classes,generated,intermediates,meson-private,static,assets",
     true},
    {".wine", message("Windows programs and their files, kept by Wine")},
    {".ollama,.ollama/models", message("language models of Ollama")},
    {".rustup,.rustup/toolchains", message("toolchains of Rust")},
    {".cargo", message("programs and downloaded packages of Cargo, for Rust")},
    {".conda/pkgs,miniconda3/pkgs,anaconda3/pkgs,miniforge3/pkgs",
     message("packages that Conda has downloaded; “conda clean” tidies them")},
    {".conda,miniconda3,anaconda3,miniforge3", message("environments and packages of Conda")},
    {".m2,.m2/repository", message("packages that Maven has downloaded")},
    {".gradle", message("downloads and caches of Gradle")},
    {".npm", message("packages that npm has downloaded")},
    {".cache/huggingface,.cache/huggingface/*,huggingface/hub",
     message("models downloaded from Hugging Face")},
    {"models--*", message("model downloaded from Hugging Face")},
    {".cache", kProgramCaches},
    {".config", kProgramSettings},
    {".local,.local/share", kProgramData},
    {".var,.var/app", kFlatpakData},
    {".mozilla", message("profiles of Firefox: bookmarks, history and passwords")},
    {".thunderbird", message("mail and profiles of Thunderbird")},
    {".ssh", message("keys for signing in to other computers")},
    {".gnupg", message("keys for encrypting and signing")},
    {".minecraft", message("Minecraft with its worlds")},
    {".git", message("history of a project, kept by Git")},
    {"*.avd", message("virtual Android device")},
    {"android/sdk,sdk/ndk,ndk/*,sdk/platforms,sdk/build-tools,sdk/system-images,sdk/emulator",
     message("tools for building Android apps; Android Studio installs them again"),
     {},
     true},
    {"baloo,akonadi,zeitgeist,tracker3,tracker,gvfs-metadata", kDatabase},
    {".terraform.d", message("sign-ins and plugins of Terraform")},
    {".pub-cache,.pub-cache/hosted", message("packages that Dart and Flutter have downloaded")},
};

/// What has a folder around it in which programs keep what is theirs. As places expand them.
constexpr Row kWithin[] = {
    {"{CACHE}", kProgramCaches},    {"{CONFIG}", kProgramSettings}, {"{DATA}", kProgramData},
    {"{H}/.var/app", kFlatpakData}, {"{H}", kProgramData}, // where the name is hidden
};

constexpr Row kFiles[] = {
    {"core,core.0*,core.1*,core.2*,core.3*,core.4*,core.5*,core.6*,core.7*,core.8*,core.9*",
     message("memory dump of a crashed program, of use only to its developers")},
    {"nohup.out", message("output of a command that was started with “nohup”")},
    {".bash_history,.zsh_history", message("commands that were typed in the terminal")},
    {"*.vdi,*.vmdk,*.qcow2,*.vhd,*.vhdx", message("disk of a virtual machine")},
    {"*.iso,*.img", message("image of a disk, such as an installation medium")},
    {"*.deb,*.rpm,*.flatpakref,*.flatpak,*.msi,*setup*.exe,*install*.exe",
     message("package that installs a program")},
    {"*.appimage,*.exe", message("program in a single file")},
    {"*.so,*.so.*,*.dll", message("library that programs load")},
    {"*.kdbx", message("password database")},
    {"*.part,*.crdownload", message("unfinished download")},
    {"*.torrent", message("torrent file; what it downloads lies elsewhere")},
    {"*.sqlite,*.sqlite3,*.db", kDatabase},
    {"*.bak,*.old", message("earlier copy of a file")},
    {".xsession-errors*,*.log", message("messages that programs have written")},
    {"*.odt,*.docx,*.doc,*.rtf", message("text document")},
    {"*.zip,*.7z,*.rar,*.tar,*.tar.*,*.tgz", message("archive of packed files")},
};

/// Whether one of the patterns is the name, with the folder around it where the pattern has one.
bool isNamed(const Row& row, std::string_view name, std::string_view longer)
{
    std::string_view names = row.names;
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(','), names.size());
        const std::string_view pattern = names.substr(0, end);
        const bool hasFolder = pattern.find('/') != std::string_view::npos;
        if (NamePattern::matches(pattern, hasFolder ? longer : name))
            return true;
        names.remove_prefix(std::min(end + 1, names.size()));
    }
    return false;
}

/// Whether a folder holds what it must.
bool holds(const AskContext& context, HomeFiles::Number folder, std::string_view names)
{
    const HomeFiles& home = *context.home;
    const HomeFiles::Number last = home.foldersFrom(folder).last;
    for (HomeFiles::Number each = folder + 1; each < last; each = home.foldersFrom(each).last) {
        if (isListed(names, home.folderName(each)))
            return true;
    }
    return names.empty();
}

/// Of a folder that no row names, what its place says of it; null if nothing.
const Row* rowWithin(std::string_view path)
{
    const std::string_view around = PathText::parent(path);
    const bool isHidden = PathText::lastComponent(path).starts_with('.');
    const auto* const row = std::ranges::find_if(kWithin, [&](const Row& each) {
        const std::vector<std::string> places = Places::current().expand(each.names);
        return (each.names != "{H}" || isHidden) && std::ranges::find(places, around) != places.end();
    });
    return row == std::end(kWithin) ? nullptr : row;
}

template <typename Wanted>
Message rowFor(std::string_view path, const AskContext& context, Wanted isWanted)
{
    if (context.home == nullptr)
        return {};
    const auto folder = context.home->folderAt(path);
    const std::string name = lowered(PathText::lastComponent(path));
    const std::string longer = lowered(PathText::lastComponent(PathText::parent(path))) + "/" + name;
    const auto found = [&](const Row& row) {
        return isNamed(row, name, longer) && (!folder || holds(context, *folder, row.holding));
    };
    const auto said = [&](const auto& rows) {
        const auto* const named = std::ranges::find_if(rows, found);
        const Row* const row = named != std::end(rows) ? named : folder ? rowWithin(path) : nullptr;
        return row == nullptr || !isWanted(*row)
                   ? Message()
                   : Message{InsightTexts::kWhatItIs, {{"path", tilde(path)}, {"thing", within(row->thing)}}};
    };
    return folder ? said(kFolders) : said(kFiles);
}

} // namespace

Message whatItIs(std::string_view path, const AskContext& context)
{
    return rowFor(path, context, [](const Row& /*row*/) { return true; });
}

Message whatIsNamed(std::string_view name)
{
    const std::string lower = lowered(name);
    const auto* const row = std::ranges::find_if(
        kFolders, [&](const Row& each) { return !lower.empty() && isNamed(each, lower, {}); });
    return row == std::end(kFolders)
               ? Message()
               : Message{InsightTexts::kWhatItIs,
                         {{"path", PathText::forDisplay(name)}, {"thing", within(row->thing)}}};
}

Message whatMakesItAgain(std::string_view path, const AskContext& context)
{
    return rowFor(path, context, [](const Row& row) { return row.isMadeAgain; });
}

} // namespace orlen::AskReader
