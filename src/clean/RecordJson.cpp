#include "clean/RecordJson.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <limits>

namespace orlen::RecordJson {

namespace {

using nlohmann::json;

/// The records nest four deep. The library keeps nesting on the heap, so what this refuses is not a stack
/// overflow but a small file that would need gigabytes.
constexpr int kDeepest = 32;

bool isTooDeep(std::string_view text)
{
    int depth = 0;
    bool isInString = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (isInString) {
            at += c == '\\' ? 1 : 0;
            isInString = c != '"';
        } else if (c == '"') {
            isInString = true;
        } else if (c == '[' || c == '{') {
            if (++depth > kDeepest)
                return true;
        } else if (c == ']' || c == '}') {
            --depth;
        }
    }
    return false;
}

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

/// A whole number from 0 to `largest`: sizes and counts are never negative.
std::optional<std::int64_t> count(const json& value, std::int64_t largest)
{
    // Of the library's two kinds of whole number the signed one is only used for negative ones.
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() > static_cast<std::uint64_t>(largest))
        return std::nullopt;
    return value.get<std::int64_t>();
}

std::optional<std::int64_t> count(const json& object, const char* key,
                                  std::int64_t largest = std::numeric_limits<std::int64_t>::max())
{
    const json* value = member(object, key);
    return value == nullptr ? std::nullopt : count(*value, largest);
}

/// Adds sizes from a file, where a sum that does not fit is the file's fault and must not stop the program.
class BoundedSum {
public:
    [[nodiscard]] bool add(std::int64_t size) { return !__builtin_add_overflow(m_sum, size, &m_sum); }

private:
    std::int64_t m_sum = 0;
};

std::optional<TrashedItem> decodeItem(const json& object)
{
    auto original = text(object, "original");
    auto trashed = text(object, "trashed");
    const auto size = count(object, "size");
    const auto restored = flag(object, "restored");
    if (!original || !trashed || !size || !restored)
        return std::nullopt;
    return TrashedItem{*std::move(original), *std::move(trashed), *size, *restored};
}

std::optional<CleanRecord> decodeRecord(const json& object)
{
    const auto id = Uuid::parse(text(object, "id").value_or(""));
    const auto date = time(object, "date");
    auto title = text(object, "title");
    const json* items = member(object, "items");
    const auto failed = count(object, "failed", std::numeric_limits<int>::max());
    if (!id || !date || !title || items == nullptr || !items->is_array() || !failed)
        return std::nullopt;
    CleanRecord record{*id, *date, *std::move(title), {}, static_cast<int>(*failed)};
    record.items.reserve(items->size());
    for (const json& element : *items) {
        auto item = decodeItem(element);
        if (!item)
            return std::nullopt;
        record.items.push_back(*std::move(item));
    }
    return record;
}

std::optional<Snapshot> decodeSnapshot(const json& object)
{
    const auto date = time(object, "date");
    const auto free = count(object, "free");
    const auto total = count(object, "total");
    const json* cats = member(object, "cats");
    if (!date || !free || !total || cats == nullptr || !cats->is_object())
        return std::nullopt;
    Snapshot snapshot{*date, *free, *total, {}};
    BoundedSum sum;
    for (const auto& [category, value] : cats->items()) {
        const auto bytes = count(value, std::numeric_limits<std::int64_t>::max());
        if (!bytes || !sum.add(*bytes))
            return std::nullopt;
        snapshot.cats[category] = *bytes;
    }
    return snapshot;
}

template <typename Record>
std::optional<std::vector<Record>> decodeArray(std::string_view source,
                                               std::optional<Record> (*decode)(const json&))
{
    if (isTooDeep(source))
        return std::nullopt;
    const json array = json::parse(source, nullptr, false);
    if (!array.is_array())
        return std::nullopt;
    std::vector<Record> records;
    records.reserve(array.size());
    for (const json& element : array) {
        auto record = decode(element);
        if (!record)
            return std::nullopt;
        records.push_back(*std::move(record));
    }
    return records;
}

/// Whether the sizes of all items together can be summed, as the screens do.
bool isSummable(const std::vector<CleanRecord>& history)
{
    BoundedSum sum;
    return std::all_of(history.begin(), history.end(), [&](const CleanRecord& record) {
        return std::all_of(record.items.begin(), record.items.end(),
                           [&](const TrashedItem& item) { return sum.add(item.size); });
    });
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
    if (entry.note)
        object["note"] = *entry.note;
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

std::optional<std::vector<CleanRecord>> decodeHistory(std::string_view text)
{
    auto history = decodeArray<CleanRecord>(text, decodeRecord);
    if (history && !isSummable(*history))
        return std::nullopt;
    return history;
}

std::optional<std::vector<Snapshot>> decodeSnapshots(std::string_view text)
{
    return decodeArray<Snapshot>(text, decodeSnapshot);
}

} // namespace orlen::RecordJson
