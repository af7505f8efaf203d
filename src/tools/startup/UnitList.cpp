#include "tools/startup/UnitList.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace orlen::UnitList {

namespace {

using Json = nlohmann::json;

/// Collects the units during parsing, so that a long or deep document costs no memory of its own.
class Reader final : public nlohmann::json_sax<Json> {
public:
    [[nodiscard]] std::vector<ListedUnit> units() && { return std::move(m_units); }

    bool start_array(std::size_t /*count*/) override { return enter(Level::array); }
    bool end_array() override { return leave(); }
    bool start_object(std::size_t /*count*/) override
    {
        const bool isAllowed = enter(Level::object);
        if (isInUnit())
            m_unit = {};
        return isAllowed;
    }
    bool end_object() override
    {
        if (isInUnit() && !m_unit.name.empty() && !m_unit.state.empty())
            m_units.push_back(std::move(m_unit));
        return leave();
    }
    bool key(string_t& name) override
    {
        m_place = nullptr;
        if (isInUnit() && name == "unit_file")
            m_place = &m_unit.name;
        else if (isInUnit() && name == "state")
            m_place = &m_unit.state;
        // If a key occurs twice the last one counts, whatever its type.
        if (m_place != nullptr)
            m_place->clear();
        return true;
    }
    bool string(string_t& text) override
    {
        if (isInUnit() && m_place != nullptr)
            *m_place = std::move(text);
        return isInList();
    }

    bool null() override { return isInList(); }
    bool boolean(bool /*value*/) override { return isInList(); }
    bool number_integer(number_integer_t /*value*/) override { return isInList(); }
    bool number_unsigned(number_unsigned_t /*value*/) override { return isInList(); }
    bool number_float(number_float_t /*value*/, const string_t& /*text*/) override { return isInList(); }
    bool binary(binary_t& /*value*/) override { return false; }
    bool parse_error(std::size_t /*at*/, const std::string& /*token*/,
                     const Json::exception& /*why*/) override
    {
        return false;
    }

private:
    enum class Level { array, object };
    static constexpr std::size_t kDeepest = 16;

    bool enter(Level level)
    {
        const bool isAllowed = m_levels.empty() ? level == Level::array : m_levels.size() < kDeepest;
        m_levels.push_back(level);
        return isAllowed;
    }
    bool leave()
    {
        m_levels.pop_back();
        return true;
    }
    [[nodiscard]] bool isInList() const { return !m_levels.empty(); }
    [[nodiscard]] bool isInUnit() const { return m_levels.size() == 2 && m_levels[1] == Level::object; }

    std::vector<Level> m_levels; ///< open levels, outermost first
    ListedUnit m_unit;
    std::string* m_place = nullptr; ///< where to put the next value, if it is wanted
    std::vector<ListedUnit> m_units;
};

} // namespace

std::optional<std::vector<ListedUnit>> parsed(std::string_view text)
{
    Reader reader;
    if (!Json::sax_parse(text.begin(), text.end(), &reader))
        return std::nullopt;
    return std::move(reader).units();
}

} // namespace orlen::UnitList
