#include "tools/advice/UnusedRuntimes.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/KeyFile.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace orlen::UnusedRuntimes {

namespace {

/// An extension by its name, or what its name begins with, and branch.
using Extension = std::pair<std::string, std::string>;

/// What others have use for.
struct Needs {
    std::set<std::string> runtimes; ///< such as "org.example.Platform/x86_64/45"
    std::set<Extension> extensions;

    void add(const Needs& other)
    {
        runtimes.insert(other.runtimes.begin(), other.runtimes.end());
        extensions.insert(other.extensions.begin(), other.extensions.end());
    }
    [[nodiscard]] std::size_t size() const { return runtimes.size() + extensions.size(); }
};

/// An application or runtime that is installed.
struct Installed {
    std::string name;
    std::string ref; ///< name, architecture and branch
    std::string branch;
    std::string folder;
    Needs needs;
    std::string extends;  ///< the runtime it adds to; empty if it stands alone
    bool isKnown = false; ///< whether its description could be read
};

std::vector<std::string> foldersIn(const std::string& folder)
{
    std::vector<std::string> paths;
    for (const std::string& name : listNames(folder)) {
        std::string path = PathText::join(folder, name);
        if (isRealFolder(path))
            paths.push_back(std::move(path));
    }
    return paths;
}

/// "1.4;23.08;" and so on.
void addExtensions(std::string_view name, std::string_view branches, Needs& needs)
{
    for (std::size_t start = 0; start < branches.size();) {
        const std::size_t end = std::min(branches.find(';', start), branches.size());
        if (end > start)
            needs.extensions.emplace(name, branches.substr(start, end - start));
        start = end + 1;
    }
}

void readDescription(const std::string& file, Installed& installed)
{
    constexpr std::size_t kLimit = 256UL * 1024;
    constexpr std::string_view kRuntime = "runtime/";
    constexpr std::string_view kExtension = "Extension ";
    const auto text = readSmallFile(file, kLimit);
    if (!text)
        return;
    installed.isKnown = true;
    KeyFile description(*text);
    while (const auto line = description.next()) {
        const bool isMain = line->group == "Application" || line->group == "Runtime";
        if (isMain && (line->key == "runtime" || line->key == "sdk") && line->value != installed.ref)
            installed.needs.runtimes.emplace(line->value);
        if (line->group == "ExtensionOf" && line->key == "ref" && line->value.starts_with(kRuntime))
            installed.extends = line->value.substr(kRuntime.size());
        if (!line->group.starts_with(kExtension))
            continue;
        const std::string_view name = line->group.substr(kExtension.size());
        if (line->isHeading)
            addExtensions(name, installed.branch, installed.needs);
        else if (line->key == "version" || line->key == "versions")
            addExtensions(name, line->value, installed.needs);
    }
}

/// Everything below "app" or "runtime" of an installation: name, architecture, branch, then one folder for
/// each version, of which there is usually one.
std::vector<Installed> allIn(const std::string& folder)
{
    std::vector<Installed> all;
    for (const std::string& name : foldersIn(folder)) {
        for (const std::string& architecture : foldersIn(name)) {
            for (const std::string& branch : foldersIn(architecture)) {
                Installed installed;
                installed.name = PathText::lastComponent(name);
                installed.ref = branch.substr(folder.size() + 1);
                installed.branch = PathText::lastComponent(branch);
                installed.folder = branch;
                for (const std::string& version : foldersIn(branch))
                    readDescription(version + "/metadata", installed);
                all.push_back(std::move(installed));
            }
        }
    }
    return all;
}

bool isNeeded(const Installed& runtime, const Needs& needed)
{
    // What cannot be understood is taken to be in use.
    if (!runtime.isKnown || needed.runtimes.contains(runtime.ref) ||
        (!runtime.extends.empty() && needed.runtimes.contains(runtime.extends)))
        return true;
    return std::ranges::any_of(needed.extensions, [&](const Extension& extension) {
        const auto& [name, branch] = extension;
        return branch == runtime.branch && (runtime.name == name || runtime.name.starts_with(name + '.'));
    });
}

} // namespace

AdviceFound find(const Places& places)
{
    Needs needed;
    std::vector<Installed> runtimes;
    std::vector<std::string> installations = places.expand("{DATA}/flatpak");
    installations.push_back(places.systemRoot + "/var/lib/flatpak");
    for (const std::string& installation : installations) {
        for (const Installed& app : allIn(installation + "/app")) {
            if (!app.isKnown)
                return {};
            needed.add(app.needs);
        }
        std::vector<Installed> here = allIn(installation + "/runtime");
        runtimes.insert(runtimes.end(), std::make_move_iterator(here.begin()),
                        std::make_move_iterator(here.end()));
    }
    // What is needed may need more.
    for (std::size_t before = std::string::npos; before != needed.size();) {
        before = needed.size();
        for (const Installed& runtime : runtimes) {
            if (isNeeded(runtime, needed))
                needed.add(runtime.needs);
        }
    }
    AdviceFound found;
    for (const Installed& runtime : runtimes) {
        if (!isNeeded(runtime, needed))
            found.paths.push_back(runtime.folder);
    }
    return found;
}

} // namespace orlen::UnusedRuntimes
