#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace orlen {

/// Writes `--help` in the person's language: the parser's own words, in columns as wide as a terminal shows
/// them.
class HelpFormatter final : public CLI::Formatter {
public:
    HelpFormatter();

    [[nodiscard]] std::string make_group(std::string group, bool isPositional,
                                         std::vector<const CLI::Option*> options) const override;
    [[nodiscard]] std::string make_option(const CLI::Option* option, bool isPositional) const override;
};

} // namespace orlen
