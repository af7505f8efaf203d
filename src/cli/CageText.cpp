#include "cli/CageText.h"

#include "cli/CliTexts.h"
#include "model/Words.h"

namespace orlen::CageText {

namespace {

struct Line {
    CageReport::Wall wall;
    Text holds;
    Text doesNot;
};
using Wall = CageReport::Wall;

/// All but the wall around files, which names what it is made of.
constexpr Line kLines[] = {
    {Wall::calls, message("System calls: only those that decoding needs"),
     message("System calls: not limited on this system")},
    {Wall::network, message("Network: none"), message("Network: not closed on this system")},
    {Wall::processes, message("New processes: none"), message("New processes: not prevented on this system")},
    {Wall::others, message("Other processes: out of reach"),
     message("Other processes: not out of reach on this system")},
    {Wall::code, message("New code in memory: none"),
     message("New code in memory: not prevented on this system")},
    {Wall::environment, message("Environment: empty"), message("Environment: not empty")},
    {Wall::memory, message("Its memory: never looked into or saved"),
     message("Its memory: not closed on this system")},
};

Message files(const CageReport& report)
{
    const bool holds = report.holds(Wall::files);
    if (report.landlock == 0)
        return holds ? CliTexts::kFilesClosed : CliTexts::kFilesOpen;
    return {holds ? CliTexts::kFilesClosedByLandlock : CliTexts::kFilesOpenDespiteLandlock,
            {{"version", report.landlock}}};
}

std::string indented(const Message& line)
{
    return "  " + shown(line) + '\n';
}

} // namespace

std::string of(const std::optional<CageReport>& report)
{
    if (!report)
        return shown(CliTexts::kRecognizerSilent) + '\n';
    std::string text = shown(CliTexts::kRecognizer) + '\n' + indented(files(*report));
    if (report->landlock > 0 && report->holds(Wall::files))
        text += indented(CliTexts::kFontsReadable);
    for (const Line& line : kLines)
        text += indented(report->holds(line.wall) ? line.holds : line.doesNot);
    return text;
}

} // namespace orlen::CageText
