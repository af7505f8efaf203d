#include "clean/RecordJson.h"

#include "platform/values/CheckedSum.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

namespace orlen::RecordJson {

namespace {

using nlohmann::json;

/// Records nest four levels deep; anything deeper is not part of them and skipped.
constexpr int kDeepest = 32;

const json* member(const json& object, const char* key)
{
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

std::optional<std::string> text(const json& object, const char* key)
{
    const json* value = member(object, key);
    if (value == nullptr || !value->is_string())
        return std::nullopt;
    return value->get_ref<const std::string&>();
}

std::optional<TimePoint> time(const json& object, const char* key)
{
    const auto iso = text(object, key);
    return iso ? timeFromIso(*iso) : std::nullopt;
}

std::optional<bool> flag(const json& object, const char* key)
{
    const json* value = member(object, key);
    if (value == nullptr || !value->is_boolean())
        return std::nullopt;
    return value->get<bool>();
}

/// Reads records and notes whether anything was wrong.
class Decoder {
public:
    [[nodiscard]] bool isExact() const { return m_isExact; }
    /// Notes that something was left out.
    void leaveOut() { m_isExact = false; }

    std::optional<TrashedItem> item(const json& object)
    {
        auto original = text(object, "original");
        auto trashed = text(object, "trashed");
        const auto size = count(member(object, "size"), m_bytesLeft);
        const auto restored = flag(object, "restored");
        if (!original || !trashed || !size || !restored)
            return std::nullopt;
        m_bytesLeft -= *size;
        return TrashedItem{*std::move(original), *std::move(trashed), *size, *restored};
    }

    /// Without its items.
    std::optional<CleanRecord> record(const json& object)
    {
        const auto id = Uuid::parse(text(object, "id").value_or(""));
        const auto date = time(object, "date");
        auto title = text(object, "title");
        const json* items = member(object, "items");
        const auto failed = count(member(object, "failed"), std::numeric_limits<int>::max());
        if (!id || !date || !title || items == nullptr || !items->is_array() || !failed)
            return std::nullopt;
        return CleanRecord{*id, *date, *std::move(title), {}, static_cast<int>(*failed)};
    }

    std::optional<Snapshot> snapshot(const json& object)
    {
        const auto date = time(object, "date");
        const auto free = count(member(object, "free"), kMostBytes);
        const auto total = count(member(object, "total"), kMostBytes);
        const json* cats = member(object, "cats");
        if (!date || !free || !total || cats == nullptr || !cats->is_object())
            return std::nullopt;
        Snapshot snapshot{*date, *free, *total, {}};
        std::int64_t bytesLeft = kMostBytes;
        for (const auto& [category, value] : cats->items()) {
            const auto bytes = count(&value, bytesLeft);
            if (!bytes)
                return std::nullopt;
            bytesLeft -= *bytes;
            snapshot.cats[category] = *bytes;
        }
        return snapshot;
    }

private:
    /// A whole number, capped to 0 to `largest`; nothing for anything else.
    std::optional<std::int64_t> count(const json* value, std::int64_t largest)
    {
        // The library returns numbers beyond 64 bits as fractions.
        constexpr double kBeyondWhole = 9.2e18;
        if (value == nullptr || !value->is_number() ||
            (value->is_number_float() && std::abs(value->get<double>()) < kBeyondWhole))
            return std::nullopt;
        if (value->is_number_unsigned() && value->get<std::uint64_t>() <= static_cast<std::uint64_t>(largest))
            return value->get<std::int64_t>();
        m_isExact = false;
        // The library uses its signed integers for negative numbers only.
        const bool isNegative =
            value->is_number_float() ? value->get<double>() < 0 : !value->is_number_unsigned();
        return isNegative ? 0 : largest;
    }

    bool m_isExact = true;
    std::int64_t m_bytesLeft = kMostBytes; ///< that all items together may have
};

/// Takes each record out of the parser as soon as it is complete, so that none is in memory twice.
class SnapshotCollector {
public:
    static constexpr std::string_view kFirstKey = "\"date\"";

    bool take(int depth, json::parse_event_t event, const json& value)
    {
        if (depth != 1 || event != json::parse_event_t::object_end)
            return true;
        if (auto snapshot = m_decoder.snapshot(value))
            m_records.push_back(*std::move(snapshot));
        else
            m_decoder.leaveOut();
        return false;
    }

    Decoder& decoder() { return m_decoder; }
    std::vector<Snapshot> records() && { return std::move(m_records); }

private:
    Decoder m_decoder;
    std::vector<Snapshot> m_records;
};

/// The same for clean-ups, and for the items of one.
class RecordCollector {
public:
    static constexpr std::string_view kFirstKey = "\"id\"";

    bool take(int depth, json::parse_event_t event, const json& value)
    {
        using Event = json::parse_event_t;
        if (depth == 2 && event == Event::key)
            m_key = value.get<std::string>();
        const bool isRecordStart = depth == 1 && event == Event::object_start;
        if (isRecordStart || (depth == 2 && event == Event::array_start && m_key == "items")) {
            m_items.clear();
            m_lostItems = 0;
        }
        if (depth == 3 && m_key == "items" && event != Event::object_start && event != Event::array_start &&
            event != Event::key)
            return takeItem(value);
        if (depth == 1 && event == Event::object_end)
            return takeRecord(value);
        return true;
    }

    Decoder& decoder() { return m_decoder; }
    std::vector<CleanRecord> records() && { return std::move(m_records); }

private:
    bool takeItem(const json& value)
    {
        if (auto item = value.is_object() ? m_decoder.item(value) : std::nullopt)
            m_items.push_back(*std::move(item));
        else
            ++m_lostItems;
        return false;
    }

    bool takeRecord(const json& value)
    {
        auto record = m_decoder.record(value);
        const bool isEmptied = m_items.empty() && m_lostItems > 0;
        if (!record || m_lostItems > 0)
            m_decoder.leaveOut();
        if (record && !isEmptied) {
            record->items = std::move(m_items);
            m_records.push_back(*std::move(record));
        }
        m_items.clear();
        return false;
    }

    Decoder m_decoder;
    std::string m_key; ///< in the record that is being read
    std::vector<TrashedItem> m_items;
    int m_lostItems = 0;
    std::vector<CleanRecord> m_records;
};

/// Iterates over a text and exposes how far the parser got, which the library does not report.
struct Cursor {
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    const char* at;
    const char** farthest;

    reference operator*() const { return *at; }
    Cursor& operator++()
    {
        *farthest = ++at;
        return *this;
    }
    bool operator==(const Cursor& other) const { return at == other.at; }
};

/// How far an array was intact.
struct Reading {
    bool isSound = false;
    std::size_t reached = 0; ///< where reading ended
    std::size_t taken = 0;   ///< after the last complete record; 0 if none
};

template <typename Collector>
Reading readArray(const std::string& text, std::size_t start, Collector& collector)
{
    using Event = json::parse_event_t;
    Reading reading;
    const char* farthest = text.data() + start;
    const auto take = [&](int depth, Event event, const json& value) {
        if (depth == 1 && (event == Event::value || event == Event::array_end))
            collector.decoder().leaveOut();
        if (depth == 1 && event == Event::object_end)
            reading.taken = static_cast<std::size_t>(farthest - text.data());
        return depth <= kDeepest && collector.take(depth, event, value);
    };
    const char* end = text.data() + text.size();
    const json array = json::parse(Cursor{farthest, &farthest}, Cursor{end, &farthest}, take, false);
    reading.isSound = array.is_array();
    reading.reached = static_cast<std::size_t>(farthest - text.data());
    return reading;
}

/// Where the next record starts at or after `from`, in the form this program writes; npos if there is none.
std::size_t nextRecord(std::string_view text, std::size_t from, std::string_view firstKey)
{
    for (std::size_t at = text.find(firstKey, from); at != std::string_view::npos;
         at = text.find(firstKey, at + 1)) {
        const std::size_t before = at == 0 ? at : text.find_last_not_of(" \t\r\n", at - 1);
        if (before != std::string_view::npos && before >= from && text[before] == '{')
            return before;
    }
    return std::string_view::npos;
}

/// If the text is damaged, by a lost byte or truncation, parsing resumes at the next record after the damage,
/// as if an array started there.
template <typename Record, typename Collector>
Decoded<Record> decodeArray(std::string text)
{
    Collector collector;
    if (const std::size_t first = text.find_first_not_of(" \t\r\n");
        first == std::string::npos || text[first] != '[') {
        collector.decoder().leaveOut();
        text.insert(0, 1, '[');
    }
    // A hostile text could fail at every byte, each time far past the place to resume.
    const std::size_t budget = 4 * text.size();
    std::size_t work = 0;
    for (std::size_t start = 0; work <= budget;) {
        const Reading reading = readArray(text, start, collector);
        if (reading.isSound)
            break;
        collector.decoder().leaveOut();
        work += reading.reached - start + 1;
        const std::size_t next = nextRecord(text, std::max(reading.taken, start + 2), Collector::kFirstKey);
        if (next == std::string::npos)
            break;
        start = next - 1;
        text[start] = '[';
    }
    const bool isWhole = collector.decoder().isExact();
    return {std::move(collector).records(), isWhole};
}

} // namespace

nlohmann::ordered_json encode(const FileEntry& entry)
{
    nlohmann::ordered_json object{{"path", entry.path}, {"size", entry.size}};
    if (entry.modified)
        object["modified"] = isoText(*entry.modified);
    if (entry.lastOpened)
        object["lastOpened"] = isoText(*entry.lastOpened);
    if (entry.rating)
        object["rating"] = rawValue(*entry.rating);
    if (!entry.notes.empty())
        object["note"] = noteOf(entry).base();
    return object;
}

nlohmann::ordered_json encode(const TrashedItem& item)
{
    return {{"original", item.original},
            {"trashed", item.trashed},
            {"size", item.size},
            {"restored", item.restored}};
}

nlohmann::ordered_json encode(const CleanRecord& record)
{
    auto items = nlohmann::ordered_json::array();
    for (const TrashedItem& item : record.items)
        items.push_back(encode(item));
    return {{"id", record.id.text()},
            {"date", isoText(record.date)},
            {"title", record.title},
            {"items", std::move(items)},
            {"failed", record.failed}};
}

nlohmann::ordered_json encode(const Snapshot& snapshot)
{
    auto cats = nlohmann::ordered_json::object();
    for (const auto& [category, bytes] : snapshot.cats)
        cats[category] = bytes;
    return {{"date", isoText(snapshot.date)},
            {"free", snapshot.free},
            {"total", snapshot.total},
            {"cats", std::move(cats)}};
}

Decoded<CleanRecord> decodeHistory(std::string text)
{
    return decodeArray<CleanRecord, RecordCollector>(std::move(text));
}

Decoded<Snapshot> decodeSnapshots(std::string text)
{
    return decodeArray<Snapshot, SnapshotCollector>(std::move(text));
}

} // namespace orlen::RecordJson
