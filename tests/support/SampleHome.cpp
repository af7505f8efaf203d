#include "support/SampleHome.h"

#include "platform/values/Time.h"
#include "support/SamplePictures.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace orlen::SampleHome {

namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

[[noreturn]] void stop(const std::string& what)
{
    std::fprintf(stderr, "cannot make %s\n", what.c_str());
    std::exit(1);
}

void check(bool worked, const std::string& what)
{
    if (!worked)
        stop(what);
}

void replaceAll(std::string& text, std::string_view what, std::string_view by)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
}

/// The alternatives of the first list in braces, each with those of the lists behind it.
Strings alternatives(const std::string& pattern)
{
    std::size_t open = pattern.find('{');
    std::size_t close = std::string::npos;
    for (; open != std::string::npos; open = pattern.find('{', open + 1)) {
        close = pattern.find('}', open);
        if (pattern.substr(open, close - open).find(',') != std::string::npos)
            break;
    }
    if (open == std::string::npos)
        return {pattern};
    Strings all;
    for (std::size_t at = open + 1; at <= close;) {
        const std::size_t end = std::min(pattern.find(',', at), close);
        for (const std::string& rest : alternatives(pattern.substr(close + 1)))
            all.push_back(pattern.substr(0, open) + pattern.substr(at, end - at) + rest);
        at = end + 1;
    }
    return all;
}

/// Below the home folder, for each base folder its default, and where a Flatpak and a Snap have theirs.
struct BaseFolder {
    const char* word;
    const char* standard;
    const char* variable;
    const char* inFlatpak;
    const char* inSnap;
};
constexpr std::array<BaseFolder, 4> kBaseFolders{{
    {"{CACHE}", ".cache", "XDG_CACHE_HOME", "cache", "common/.cache"},
    {"{CONFIG}", ".config", "XDG_CONFIG_HOME", "config", "9/.config"},
    {"{DATA}", ".local/share", "XDG_DATA_HOME", "data", "9/.local/share"},
    {"{STATE}", ".local/state", "XDG_STATE_HOME", "", ""},
}};
constexpr const char* kFlatpak = "org.example.Paint";
constexpr const char* kSnap = "paint";

std::string movedFolder(const BaseFolder& base)
{
    return std::string(".moved/") + base.standard;
}

Strings foldersOf(std::string_view word, Layout layout)
{
    for (const BaseFolder& base : kBaseFolders) {
        if (word != base.word)
            continue;
        switch (layout) {
        case Layout::plain:
        case Layout::misled:
            return {base.standard};
        case Layout::moved:
            return {movedFolder(base), base.standard};
        case Layout::flatpak:
            return {std::string(".var/app/") + kFlatpak + "/" + base.inFlatpak};
        case Layout::snap:
            return {std::string("snap/") + kSnap + "/" + base.inSnap};
        }
    }
    if (word == "{STEAM}") {
        Strings all;
        for (const std::string& data : foldersOf("{DATA}", layout))
            all.push_back(data + "/Steam");
        for (const char* place : {".var/app/com.valvesoftware.Steam/.local/share/Steam",
                                  "snap/steam/common/.local/share/Steam", ".steam/debian-installation"})
            all.emplace_back(place);
        return all;
    }
    if (word == "{DOWNLOAD}")
        return {"Transfers"};
    if (word == "{DOCUMENTS}")
        return {"Papers"};
    if (word == "{PICTURES}")
        return {"Photographs"};
    if (word == "{VIDEOS}")
        return {"Films"};
    return {};
}

/// The places a text with one word at its start stands for.
Strings spelledOut(const std::string& home, std::string place, Layout layout)
{
    replaceAll(place, "{UID}", std::to_string(::geteuid()));
    Strings all;
    for (const std::string& one : alternatives(place)) {
        const std::size_t end = one.find('}') + 1;
        const std::string word = one.substr(0, end);
        if (word == "{H}") {
            all.push_back(home + one.substr(end));
            continue;
        }
        const Strings folders = foldersOf(word, layout);
        check(!folders.empty(), "a place from " + one);
        for (const std::string& folder : folders)
            all.push_back(home + "/" + folder + one.substr(end));
    }
    return all;
}

std::string firstPlace(const std::string& home, const std::string& place, Layout layout)
{
    return spelledOut(home, place, layout).front();
}

bool isIn(const Row& row, Layout layout)
{
    if (row.only && *row.only != layout)
        return false;
    if (layout != Layout::flatpak && layout != Layout::snap)
        return true;
    return row.place.starts_with("{CACHE}/") || row.isEveryAppsOwn;
}

std::string prefixOf(const Row& row, Layout layout)
{
    if (row.expected.note.empty() || !row.place.starts_with("{CACHE}"))
        return {};
    if (layout == Layout::flatpak)
        return std::string("Flatpak app ") + kFlatpak + " · ";
    if (layout == Layout::snap)
        return std::string("Snap app ") + kSnap + " · ";
    return {};
}

/// A text with the folders of this home in it.
std::string filledIn(std::string content, const std::string& home)
{
    const std::string now = isoText(std::chrono::system_clock::now());
    replaceAll(content, "{NOW}", now);
    replaceAll(content, "{DOWNLOAD}", firstPlace(home, "{DOWNLOAD}", Layout::plain));
    replaceAll(content, "{H}", home);
    return content;
}

void write(const std::string& path, std::string_view content)
{
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream out(path, std::ios::binary);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    out.close();
    check(out.good(), path);
    if (content.starts_with("#!"))
        check(::chmod(path.c_str(), 0755) == 0, path);
}

/// A file that takes its room on the disk.
void fill(const std::string& path, const Row& row, const std::string& seed)
{
    // Small ones are written: on some disks, room that was only reserved takes long to be given back.
    constexpr std::size_t kMostWritten = 5'000'000;
    constexpr std::size_t kBlock = 4'096;
    const std::size_t size = static_cast<std::size_t>(row.kilobytes) * 1'024;
    const std::size_t written = size <= kMostWritten ? std::max(size, kBlock) : kBlock;
    std::string content = row.head;
    while (content.size() < written)
        content += seed + '\n';
    content.resize(written);
    write(path, content);
    if (written >= size)
        return;
    const int file = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    check(file >= 0 && ::posix_fallocate(file, 0, static_cast<off_t>(size)) == 0, path);
    ::close(file);
}

void age(const std::string& path, int days)
{
    const auto then = std::chrono::system_clock::now() - std::chrono::days(days);
    const timespec time{std::chrono::system_clock::to_time_t(then), 0};
    const std::array<timespec, 2> times{time, time};
    check(::utimensat(AT_FDCWD, path.c_str(), times.data(), AT_SYMLINK_NOFOLLOW) == 0, path);
}

void ageWhole(const std::string& path, int days)
{
    if (fs::is_directory(path)) {
        for (const auto& entry : fs::recursive_directory_iterator(path))
            age(entry.path().string(), days);
    }
    age(path, days);
}

void makeFolder(const std::string& home, const Placed& placed, Layout layout)
{
    const Row& row = *placed.row;
    fs::create_directories(placed.path);
    const std::string filler = placed.path + "/" + row.filler;
    if (row.kilobytes > 0)
        fill(filler, row, row.seed.empty() ? placed.path : row.seed);
    if (!row.alsoAt.empty() && row.kilobytes > 0) {
        const std::string second = firstPlace(home, row.alsoAt, layout);
        fs::create_directories(fs::path(second).parent_path());
        // One more name for each place of the row would be one link too many.
        if (!fs::exists(second))
            fs::create_hard_link(filler, second);
    }
    for (const auto& [name, content] : row.beside)
        write(placed.path + "/" + name, filledIn(content, home));
}

void makeOne(const std::string& home, const Placed& placed, Layout layout)
{
    const Row& row = *placed.row;
    fs::create_directories(fs::path(placed.path).parent_path());
    if (!row.linkTo.empty())
        fs::create_symlink(row.linkTo.starts_with('{') ? firstPlace(home, row.linkTo, layout) : row.linkTo,
                           placed.path);
    else if (row.picture)
        write(placed.path, SamplePictures::photograph(*row.picture));
    else if (row.text)
        write(placed.path, filledIn(*row.text, home));
    else if (row.isFolder)
        makeFolder(home, placed, layout);
    else
        fill(placed.path, row, row.seed.empty() ? placed.path : row.seed);
}

} // namespace

Expectation safe(FindingKind kind, std::string note)
{
    return {Fate::found, kind, Rating::safe, true, std::move(note)};
}

Expectation review(FindingKind kind, std::string note)
{
    return {Fate::found, kind, Rating::review, false, std::move(note)};
}

Expectation unticked(FindingKind kind, Rating rating, std::string note)
{
    return {Fate::found, kind, rating, false, std::move(note)};
}

Expectation never()
{
    return {};
}

Expectation notEntered()
{
    return {.fate = Fate::notEntered};
}

Expectation protectedItself()
{
    return {.fate = Fate::protectedItself};
}

Expectation protectedWhole()
{
    return {.fate = Fate::protectedWhole};
}

Expectation unprotected()
{
    return {.fate = Fate::unprotected};
}

Row folder(std::string place, int kilobytes, Expectation expected)
{
    return {
        .place = std::move(place), .kilobytes = kilobytes, .expected = std::move(expected), .isFolder = true};
}

Row file(std::string place, int kilobytes, Expectation expected)
{
    return {.place = std::move(place), .kilobytes = kilobytes, .expected = std::move(expected)};
}

Row text(std::string place, std::string content, Expectation expected)
{
    return {.place = std::move(place), .expected = std::move(expected), .text = std::move(content)};
}

Row link(std::string place, std::string target, Expectation expected)
{
    return {.place = std::move(place), .expected = std::move(expected), .linkTo = std::move(target)};
}

Row photo(std::string place, int picture, Expectation expected)
{
    // Once is enough: pictures take their time to be looked at.
    return {.place = std::move(place),
            .expected = std::move(expected),
            .picture = picture,
            .only = Layout::plain};
}

Row Row::filledBy(std::string name) const
{
    Row row = *this;
    row.filler = std::move(name);
    return row;
}

Row Row::startingWith(std::string bytes) const
{
    Row row = *this;
    row.head = std::move(bytes);
    return row;
}

Row Row::sameAs(std::string other) const
{
    Row row = *this;
    row.seed = std::move(other);
    return row;
}

Row Row::holding(std::string name, std::string content) const
{
    Row row = *this;
    row.beside.emplace_back(std::move(name), std::move(content));
    return row;
}

Row Row::linkedAt(std::string other) const
{
    Row row = *this;
    row.alsoAt = std::move(other);
    return row;
}

Row Row::aged(int daysAgo) const
{
    Row row = *this;
    row.days = daysAgo;
    return row;
}

Row Row::withMode(unsigned permissions) const
{
    Row row = *this;
    row.mode = permissions;
    return row;
}

Row Row::inEveryApp() const
{
    Row row = *this;
    row.isEveryAppsOwn = true;
    return row;
}

Row Row::orBelow() const
{
    Row row = *this;
    row.isEntryOrBelow = true;
    return row;
}

Row Row::whileRunning(std::string executable) const
{
    Row row = *this;
    row.program = std::move(executable);
    return row;
}

Row Row::onlyIn(Layout layout) const
{
    Row row = *this;
    row.only = layout;
    return row;
}

std::vector<std::pair<std::string, std::string>> variables(const std::string& home, Layout layout)
{
    if (layout == Layout::misled)
        return {{"XDG_CACHE_HOME", firstPlace(home, "{DOCUMENTS}", layout)},
                {"XDG_DATA_HOME", firstPlace(home, "{PICTURES}", layout) + "/share"},
                {"XDG_STATE_HOME", home}};
    std::vector<std::pair<std::string, std::string>> all;
    if (layout == Layout::moved) {
        for (const BaseFolder& base : kBaseFolders)
            all.emplace_back(base.variable, home + "/" + movedFolder(base));
    }
    return all;
}

std::vector<Placed> places(const std::string& home, Layout layout)
{
    std::vector<Placed> all;
    for (const Row& row : rows()) {
        if (!isIn(row, layout))
            continue;
        for (std::string& path : spelledOut(home, row.place, layout))
            all.push_back({std::move(path), &row, prefixOf(row, layout) + row.expected.note});
    }
    return all;
}

void make(const std::string& home, Layout layout)
{
    const std::vector<Placed> all = places(home, layout);
    for (const Placed& placed : all)
        makeOne(home, placed, layout);
    if (layout == Layout::snap)
        fs::create_directory_symlink("9", home + "/snap/" + kSnap + "/current");
    // Environments are made for it, in whichever cache folder they lie.
    fs::create_directories(home + "/Projects/atlas");
    // Last: making something in a folder makes the folder new, and a folder may be closed.
    for (const Placed& placed : all) {
        if (placed.row->days > 0)
            ageWhole(placed.path, placed.row->days);
        if (placed.row->mode != 0)
            check(::chmod(placed.path.c_str(), placed.row->mode) == 0, placed.path);
    }
}

} // namespace orlen::SampleHome
