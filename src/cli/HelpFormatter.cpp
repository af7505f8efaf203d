#include "cli/HelpFormatter.h"

#include "cli/CliTexts.h"
#include "model/Words.h"
#include "platform/text/DisplayWidth.h"

#include <utility>

namespace orlen {

HelpFormatter::HelpFormatter()
{
    constexpr std::pair<const char*, Text> kLabels[] = {
        {"Usage", CliTexts::kUsage},         {"Positionals", CliTexts::kPositionals},
        {"OPTIONS", CliTexts::kOptionsHere}, {"SUBCOMMAND", CliTexts::kSubcommandHere},
        {"TEXT", CliTexts::kTextHere},       {"REQUIRED", CliTexts::kRequired},
        {"Needs", CliTexts::kNeeds},         {"Excludes", CliTexts::kExcludes},
    };
    for (const auto& [word, text] : kLabels)
        label(word, shown(text));
}

std::string HelpFormatter::make_group(std::string group, bool isPositional,
                                      std::vector<const CLI::Option*> options) const
{
    if (group == "Options")
        group = shown(CliTexts::kOptions);
    return Formatter::make_group(std::move(group), isPositional, std::move(options));
}

std::string HelpFormatter::make_option(const CLI::Option* option, bool isPositional) const
{
    std::string line = "  " + make_option_name(option, isPositional) + make_option_opts(option);
    const auto taken = static_cast<std::size_t>(DisplayWidth::columns(line));
    const std::size_t column = get_column_width();
    if (taken < column)
        line.append(column - taken, ' ');
    else
        line.append(1, '\n').append(column, ' ');
    return line + make_option_desc(option) + '\n';
}

} // namespace orlen
