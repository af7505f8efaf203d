#pragma once

#include "platform/text/PathText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace orlen {

// Messages between two processes of one build: numbers are in native byte order.

/// Puts a message together.
class MessageWriter {
public:
    template <typename Number>
    void put(const Number& number)
    {
        static_assert(std::is_trivially_copyable_v<Number>);
        std::array<char, sizeof(Number)> bytes; // NOLINT(cppcoreguidelines-pro-type-member-init)
        std::memcpy(bytes.data(), &number, sizeof number);
        m_bytes.append(bytes.data(), bytes.size());
    }
    void put(const std::string& text)
    {
        put(static_cast<std::uint8_t>(text.size()));
        m_bytes += text;
    }
    void put(const std::vector<std::uint8_t>& bytes)
    {
        put(static_cast<std::uint16_t>(bytes.size()));
        m_bytes.append(bytes.begin(), bytes.end());
    }
    [[nodiscard]] std::string bytes() { return std::move(m_bytes); }

private:
    std::string m_bytes;
};

/// Takes an untrusted message apart. Once anything was missing or out of range, everything after it is.
class MessageReader {
public:
    explicit MessageReader(std::string_view bytes) : m_bytes(bytes) {}

    template <typename Number>
    Number get()
    {
        static_assert(std::is_trivially_copyable_v<Number>);
        Number number{};
        if (const std::string_view bytes = take(sizeof number); m_isValid)
            std::memcpy(&number, bytes.data(), sizeof number);
        return number;
    }
    template <typename Number>
    Number get(Number least, Number most)
    {
        const auto number = get<Number>();
        require(number >= least && number <= most); // also false for NaN
        return m_isValid ? number : Number{};
    }
    std::string text(std::size_t longest)
    {
        const std::string_view bytes = take(get<std::uint8_t>());
        require(!bytes.empty() && bytes.size() <= longest && PathText::isValidUtf8(bytes));
        return m_isValid ? std::string(bytes) : std::string();
    }
    std::string textOrNone()
    {
        const std::string_view bytes = take(get<std::uint8_t>());
        require(PathText::isValidUtf8(bytes));
        return m_isValid ? std::string(bytes) : std::string();
    }
    std::vector<std::uint8_t> bytes(std::uint16_t most)
    {
        const std::string_view bytes = take(get<std::uint16_t>(0, most));
        return {bytes.begin(), bytes.end()};
    }
    void require(bool holds) { m_isValid = m_isValid && holds; }
    [[nodiscard]] bool isValid() const { return m_isValid; }
    /// Whether everything was valid and nothing is left over.
    [[nodiscard]] bool isValidWhole() const { return m_isValid && m_bytes.empty(); }

private:
    std::string_view take(std::size_t length)
    {
        require(length <= m_bytes.size());
        if (!m_isValid)
            return {};
        const std::string_view taken = m_bytes.substr(0, length);
        m_bytes.remove_prefix(length);
        return taken;
    }

    std::string_view m_bytes;
    bool m_isValid = true;
};

} // namespace orlen
