#include "clean/ExclusionJson.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

namespace orlen::ExclusionJson {

namespace {

using nlohmann::json;

/// Of a value in an exclusion in the array.
constexpr int kDeepest = 2;

/// Leaves out what is nested deeper than an exclusion, so that a hostile text costs little memory.
json parsed(std::string_view text)
{
    using Event = json::parse_event_t;
    const auto take = [](int depth, Event event, const json&) {
        return depth < kDeepest || (depth == kDeepest && (event == Event::key || event == Event::value));
    };
    return json::parse(text, take, false);
}

std::optional<Exclusion> exclusionOf(const json& object)
{
    if (!object.is_object() || object.size() != 1 || !object.begin()->is_string())
        return std::nullopt;
    const auto& text = object.begin()->get_ref<const std::string&>();
    if (object.begin().key() == "path")
        return Exclusion::ofPath(text);
    if (object.begin().key() == "name")
        return Exclusion::ofName(text);
    return std::nullopt;
}

class Collector {
public:
    void take(const json& object)
    {
        auto exclusion = exclusionOf(object);
        if (!exclusion || m_decoded.records.size() == kMost)
            m_decoded.isWhole = false;
        else if (m_met.emplace(exclusion->kind, exclusion->text).second)
            m_decoded.records.push_back(*std::move(exclusion));
    }

    RecordJson::Decoded<Exclusion> decoded() && { return std::move(m_decoded); }
    void leaveOut() { m_decoded.isWhole = false; }

private:
    RecordJson::Decoded<Exclusion> m_decoded;
    std::set<std::pair<Exclusion::Kind, std::string>> m_met;
};

/// What is written between the brackets and commas of one line.
std::string_view trimmed(std::string_view line)
{
    constexpr std::string_view kAround = " \t\r,[]";
    const std::size_t first = line.find_first_not_of(kAround);
    if (first == std::string_view::npos)
        return {};
    return line.substr(first, line.find_last_not_of(kAround) - first + 1);
}

void takeLines(std::string_view text, Collector& collector)
{
    collector.leaveOut();
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (const std::string_view line = trimmed(text.substr(0, end)); !line.empty())
            collector.take(parsed(line));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

} // namespace

nlohmann::ordered_json encode(const Exclusion& exclusion)
{
    return {{exclusion.kind == Exclusion::Kind::path ? "path" : "name", exclusion.text}};
}

// The files of the data folder are all decoded in this form.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
RecordJson::Decoded<Exclusion> decode(std::string text)
{
    Collector collector;
    const json document = parsed(text);
    if (document.is_array()) {
        for (const json& element : document)
            collector.take(element);
    } else {
        takeLines(text, collector);
    }
    return std::move(collector).decoded();
}

} // namespace orlen::ExclusionJson
