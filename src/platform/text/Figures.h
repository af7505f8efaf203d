#pragma once

#include "platform/values/Time.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace orlen {

/// Writes numbers, sizes, dates and lists, either plainly or as a language does. Any thread.
class Figures {
public:
    /// For what machines read, and for texts that are kept: digits without separators, English, dates as in
    /// ISO 8601, and all of it in UTC.
    [[nodiscard]] static const Figures& plain();

    /// As the locale (an ICU identifier such as "pt_BR") does; an unknown one gives a default of ICU's.
    explicit Figures(const std::string& locale);
    ~Figures();
    Figures(const Figures&) = delete;
    Figures& operator=(const Figures&) = delete;

    [[nodiscard]] std::string number(std::int64_t value) const;
    /// A size in the units of `ByteAmount`.
    [[nodiscard]] std::string bytes(std::int64_t bytes) const;
    /// How often a second: "44.1 kHz".
    [[nodiscard]] std::string frequency(std::int64_t hertz) const;
    /// The name of the language that a BCP 47 tag names; plain, or of one that is not known, the tag.
    [[nodiscard]] std::string language(const std::string& tag) const;
    /// A share of 1 in whole per cent.
    [[nodiscard]] std::string percent(double share) const;
    /// A duration: "34 ms", "0.4 s", "12 s", "3 min 20 s".
    [[nodiscard]] std::string duration(std::chrono::duration<double> time) const;
    /// The day in the person's time zone, in numbers and short.
    [[nodiscard]] std::string date(TimePoint time) const;
    /// The day with the month's name, as in a sentence: "Mar 1, 2025".
    [[nodiscard]] std::string longDate(TimePoint time) const;
    /// Day and minute in the person's time zone, short.
    [[nodiscard]] std::string dateAndTime(TimePoint time) const;
    /// The year in the person's time zone, a number without separators: "2025".
    [[nodiscard]] std::string year(TimePoint time) const;
    /// "a, b and c"
    [[nodiscard]] std::string list(std::span<const std::string> parts) const;

private:
    struct Formats;

    Figures();

    std::unique_ptr<Formats> m_formats; ///< none: plain
};

} // namespace orlen
