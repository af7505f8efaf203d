#include "platform/process/OwnProgram.h"

#include "platform/files/Folder.h"
#include "platform/process/RunningPrograms.h"
#include "platform/text/PathText.h"

#include <cstdlib>

namespace orlen::OwnProgram {

namespace {

std::string absoluteVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr && *value == '/' ? PathText::standardized(value) : std::string();
}

} // namespace

std::string_view identifier()
{
    return "io.github.orlen.Orlen";
}

std::string executable()
{
    return RunningPrograms::ownExecutable();
}

std::string path()
{
    const std::string own = executable();
    const std::string image = absoluteVariable("APPIMAGE");
    const std::string mounted = absoluteVariable("APPDIR");
    // An AppImage passes both on to everything it starts: those of a terminal are not ours.
    const bool isInherited = !mounted.empty() && !PathText::isAtOrBelow(own, resolved(mounted));
    return image.empty() || isInherited ? own : image;
}

std::string sharedFolder(std::string_view name)
{
    const std::string program = executable();
    if (program.empty())
        return {};
    return PathText::standardized(
        PathText::join(PathText::join(PathText::parent(program), "../share"), name));
}

} // namespace orlen::OwnProgram
