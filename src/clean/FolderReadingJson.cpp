#include "clean/FolderReadingJson.h"

#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

namespace orlen::FolderReadingJson {

namespace {

using nlohmann::json;

/// Numbers lie in an array in a reading in the array in the document.
constexpr int kDeepest = 4;
constexpr std::size_t kLongestPath = 4'096;

/// Leaves out what is nested deeper, so that a hostile text costs little memory.
json parsed(std::string_view text)
{
    using Event = json::parse_event_t;
    const auto take = [](int depth, Event event, const json&) {
        return depth < kDeepest || (depth == kDeepest && event == Event::value);
    };
    return json::parse(text, take, false);
}

const json* array(const json& object, const char* key)
{
    const auto found = object.find(key);
    return found != object.end() && found->is_array() ? &*found : nullptr;
}

std::optional<std::int64_t> count(const json& value, std::int64_t largest)
{
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() > static_cast<std::uint64_t>(largest))
        return std::nullopt;
    return value.get<std::int64_t>();
}

bool isPath(const json& value)
{
    const auto* path = value.get_ptr<const std::string*>();
    return path != nullptr && path->starts_with('/') && path->size() < kLongestPath &&
           PathText::isValidUtf8(*path);
}

/// The folders of a reading, sorted; nothing if they are not what the program writes.
std::optional<std::vector<FolderSize>> foldersOf(const json& numbers, const json& bytes, const json& paths)
{
    if (numbers.size() != bytes.size() || numbers.size() > kMostFolders)
        return std::nullopt;
    std::vector<FolderSize> folders;
    folders.reserve(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto number = count(numbers[i], static_cast<std::int64_t>(paths.size()) - 1);
        const auto size = count(bytes[i], kMostBytes);
        if (!number || !size)
            return std::nullopt;
        folders.push_back({paths[static_cast<std::size_t>(*number)].get_ref<const std::string&>(), *size});
    }
    std::ranges::sort(folders, {}, &FolderSize::path);
    const bool isTwice = std::ranges::adjacent_find(folders, {}, &FolderSize::path) != folders.end();
    return isTwice ? std::nullopt : std::optional(std::move(folders));
}

std::optional<FolderReading> readingOf(const json& object, const json& paths)
{
    if (!object.is_object())
        return std::nullopt;
    const auto date = object.find("date");
    const auto least = object.find("least");
    const json* const numbers = array(object, "folders");
    const json* const bytes = array(object, "bytes");
    if (date == object.end() || !date->is_string() || least == object.end() || numbers == nullptr ||
        bytes == nullptr)
        return std::nullopt;
    const auto time = timeFromIso(date->get_ref<const std::string&>());
    const auto smallest = count(*least, kMostBytes);
    auto folders = foldersOf(*numbers, *bytes, paths);
    if (!time || !smallest || !folders)
        return std::nullopt;
    return FolderReading{*time, *smallest, *std::move(folders)};
}

} // namespace

std::string encode(const std::vector<FolderReading>& readings)
{
    auto paths = json::array();
    auto encoded = json::array();
    std::map<std::string_view, std::size_t> numbers;
    for (const FolderReading& reading : readings) {
        auto folders = json::array();
        auto bytes = json::array();
        for (const FolderSize& folder : reading.folders) {
            const auto [known, isNew] = numbers.try_emplace(folder.path, paths.size());
            if (isNew)
                paths.push_back(folder.path);
            folders.push_back(known->second);
            bytes.push_back(folder.bytes);
        }
        encoded.push_back({{"date", isoText(reading.date)},
                           {"least", reading.least},
                           {"folders", std::move(folders)},
                           {"bytes", std::move(bytes)}});
    }
    const json document{{"paths", std::move(paths)}, {"readings", std::move(encoded)}};
    return document.dump(-1, ' ', false, json::error_handler_t::replace);
}

// The files of the data folder are all decoded in this form.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
RecordJson::Decoded<FolderReading> decode(std::string text)
{
    const json document = parsed(text);
    const json* const paths = document.is_object() ? array(document, "paths") : nullptr;
    const json* const readings = document.is_object() ? array(document, "readings") : nullptr;
    if (paths == nullptr || readings == nullptr || paths->size() > kMostPaths ||
        readings->size() > FolderReadings::kMost || !std::ranges::all_of(*paths, isPath))
        return {{}, false};
    RecordJson::Decoded<FolderReading> decoded;
    for (const json& object : *readings) {
        if (auto reading = readingOf(object, *paths))
            decoded.records.push_back(*std::move(reading));
        else
            decoded.isWhole = false;
    }
    std::ranges::stable_sort(decoded.records, {}, &FolderReading::date);
    return decoded;
}

} // namespace orlen::FolderReadingJson
