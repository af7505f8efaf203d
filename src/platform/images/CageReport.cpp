#include "platform/images/CageReport.h"

#include "platform/process/ChildProcess.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace orlen {

namespace {

constexpr std::array<std::string_view, 8> kWalls{"files",  "calls", "network",     "processes",
                                                 "others", "code",  "environment", "memory"};
constexpr std::string_view kLandlock = "landlock";
constexpr std::string_view kRefused = "refused";
constexpr std::string_view kPossible = "possible";

} // namespace

bool CageReport::holds(Wall wall) const
{
    int tried = 0;
    const bool isRefused = std::all_of(attempts.begin(), attempts.end(), [&](const Attempt& attempt) {
        tried += attempt.wall == wall ? 1 : 0;
        return attempt.wall != wall || attempt.isRefused;
    });
    return isRefused && tried > 0;
}

std::string CageReport::encoded() const
{
    std::ostringstream text;
    text << kLandlock << ' ' << landlock << '\n';
    for (const Attempt& attempt : attempts)
        text << kWalls[static_cast<std::size_t>(attempt.wall)] << ' '
             << (attempt.isRefused ? kRefused : kPossible) << ' ' << attempt.name << '\n';
    return text.str();
}

std::optional<CageReport> CageReport::decoded(std::string_view text)
{
    std::istringstream lines{std::string(text)};
    CageReport report;
    std::string word;
    if (!(lines >> word >> report.landlock) || word != kLandlock)
        return std::nullopt;
    std::string outcome;
    std::string name;
    while (lines >> word >> outcome && std::getline(lines >> std::ws, name)) {
        const auto* const wall = std::find(kWalls.begin(), kWalls.end(), word);
        if (wall == kWalls.end() || (outcome != kRefused && outcome != kPossible))
            return std::nullopt;
        report.attempts.push_back({static_cast<Wall>(wall - kWalls.begin()), name, outcome == kRefused});
    }
    return report;
}

std::optional<CageReport> CageReport::ask(const std::string& program)
{
    ChildProcess::Call call{{program, kArgument}, {}, std::chrono::seconds(10)};
    call.variables = ChildProcess::Variables::given;
    const auto outcome = program.empty() ? std::nullopt : ChildProcess::run(call);
    return outcome && outcome->status == 0 ? decoded(outcome->output) : std::nullopt;
}

} // namespace orlen
