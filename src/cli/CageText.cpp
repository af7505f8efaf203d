#include "cli/CageText.h"

#include <string_view>

namespace orlen::Texts {

namespace {

struct Line {
    CageReport::Wall wall;
    std::string_view holds;
    std::string_view doesNot;
};
using Wall = CageReport::Wall;

constexpr Line kLines[] = {
    {Wall::files, "Files: none can be opened", "Files: not closed on this system"},
    {Wall::calls, "System calls: only those that decoding needs", "System calls: not limited on this system"},
    {Wall::network, "Network: none", "Network: not closed on this system"},
    {Wall::processes, "New processes: none", "New processes: not prevented on this system"},
    {Wall::others, "Other processes: out of reach", "Other processes: not out of reach on this system"},
    {Wall::code, "New code in memory: none", "New code in memory: not prevented on this system"},
    {Wall::environment, "Environment: empty", "Environment: not empty"},
    {Wall::memory, "Its memory: never looked into or saved", "Its memory: not closed on this system"},
};

} // namespace

std::string cage(const std::optional<CageReport>& report)
{
    if (!report)
        return "Recognizer: it could not be asked, so no picture is looked at.\n";
    std::string text = "Recognizer, the process that reads pictures:\n";
    for (const Line& line : kLines) {
        const bool holds = report->holds(line.wall);
        text += "  ";
        text += holds ? line.holds : line.doesNot;
        if (line.wall == Wall::files)
            text += report->landlock > 0 ? " (Landlock " + std::to_string(report->landlock) + ')'
                                         : " (no Landlock)";
        text += '\n';
    }
    return text;
}

} // namespace orlen::Texts
