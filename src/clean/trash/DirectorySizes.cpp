#include "clean/trash/DirectorySizes.h"

#include "clean/trash/TrashName.h"
#include "platform/files/FileContent.h"
#include "platform/files/FolderEntries.h"
#include "platform/text/LineText.h"
#include "platform/text/PercentCoding.h"
#include "platform/values/Uuid.h"

#include <cerrno>
#include <optional>
#include <string>

namespace orlen::DirectorySizes {

namespace {

constexpr const char* kFile = "directorysizes";
/// Until it is complete, the file has this name and a random suffix.
constexpr std::string_view kBeside = "directorysizes.";
constexpr std::size_t kLimit = 16'000'000;

/// The file's text, empty if there is no file; nothing if it must be left alone.
std::optional<std::string> read(int trash)
{
    if (const auto status = statusAt(trash, kFile); !status.ok())
        return status.error() == ENOENT ? std::optional<std::string>(std::in_place) : std::nullopt;
    auto text = readHeadAt(trash, kFile, kLimit);
    if (!text || text->size() == kLimit)
        return std::nullopt;
    if (!text->empty() && text->back() != '\n')
        text->push_back('\n');
    return text;
}

/// The name at the end of a line; empty if the line is malformed.
std::string nameOf(std::string_view line)
{
    const std::size_t space = line.rfind(' ');
    if (space == std::string_view::npos)
        return {};
    return PercentCoding::decoded(line.substr(space + 1)).value_or("");
}

bool hasInfo(int info, const std::string& name)
{
    return !name.empty() && name.find_first_of(std::string_view("/\0", 2)) == std::string::npos &&
           statusAt(info, TrashName::infoName(name).c_str()).ok();
}

void write(int trash, std::string_view text)
{
    const std::string beside = std::string(kBeside) + Uuid::random().text();
    const auto file = createFileAt(trash, beside.c_str());
    if (!file.ok())
        return;
    const auto written = writeAll(file.value().get(), text);
    if (!written.ok() || !renameReplacingAt(trash, beside.c_str(), kFile).ok())
        (void)removeFileAt(trash, beside.c_str());
}

/// The lines whose items still exist, except those of `leftOut`.
std::string current(std::string_view text, int info, std::string_view leftOut)
{
    return linesOf(text, [&](const std::string& name) { return name != leftOut && hasInfo(info, name); });
}

} // namespace

bool isUnfinished(std::string_view name)
{
    return name.starts_with(kBeside) && Uuid::parse(name.substr(kBeside.size()));
}

std::string linesOf(std::string_view text, const std::function<bool(const std::string&)>& isKept)
{
    std::string kept;
    while (!text.empty()) {
        const std::string_view line = LineText::takeLine(text);
        // Programs differ in what they encode, so compare decoded names.
        if (isKept(nameOf(line)))
            kept.append(line).push_back('\n');
    }
    return kept;
}

void add(int trash, int info, std::string_view name, std::int64_t bytes, TimePoint infoTime)
{
    const auto text = read(trash);
    if (!text)
        return;
    const auto seconds = std::chrono::floor<std::chrono::seconds>(infoTime.time_since_epoch()).count();
    write(trash, current(*text, info, name) + std::to_string(bytes) + " " + std::to_string(seconds) + " " +
                     PercentCoding::encoded(name) + "\n");
}

void remove(int trash, int info, std::string_view name)
{
    const auto text = read(trash);
    if (!text)
        return;
    const std::string kept = current(*text, info, name);
    if (kept != *text)
        write(trash, kept);
}

} // namespace orlen::DirectorySizes
