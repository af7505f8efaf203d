#include "scan/locations/CacheOwners.h"

#include "platform/process/RunningPrograms.h"
#include "platform/text/NamePattern.h"
#include "platform/text/PathText.h"

#include <algorithm>

namespace orlen {

namespace {

struct Owner {
    std::string_view folder; ///< lower case, may use "*"
    std::string_view program;
};

constexpr Owner kOwners[] = {
    {"mozilla", "firefox"},
    {"mozilla", "firefox-esr"},
    {"mozilla", "firefox-bin"},
    {"google-chrome*", "chrome"},
    {"bravesoftware", "brave"},
    {"microsoft-edge*", "msedge"},
    {"vivaldi*", "vivaldi-bin"},
    {"telegramdesktop", "telegram-desktop"},
    {"thunderbird", "thunderbird-bin"},
};

} // namespace

CacheOwners::CacheOwners()
{
    for (const std::string& executable : RunningPrograms::executables())
        m_programs.push_back(PathText::asciiLower(PathText::lastComponent(executable)));
}

std::string CacheOwners::running(std::string_view folder) const
{
    const std::string name = PathText::asciiLower(folder);
    const auto runs = [&](std::string_view program) {
        return std::ranges::find(m_programs, program) != m_programs.end();
    };
    for (const Owner& owner : kOwners) {
        if (NamePattern::matches(owner.folder, name) && runs(owner.program))
            return std::string(owner.program);
    }
    return runs(name) ? name : std::string();
}

} // namespace orlen
