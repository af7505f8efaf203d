#include "tools/startup/OwnEntry.h"

#include "platform/desktop/DesktopEntry.h"
#include "platform/process/OwnProgram.h"
#include "platform/text/PathText.h"

#include <string_view>
#include <vector>

namespace orlen::OwnEntry {

namespace {

/// One word of a command line, quoted.
std::string quotedWord(std::string_view word)
{
    std::string quoted = "\"";
    for (const char c : word) {
        if (std::string_view("\"`$\\").find(c) != std::string_view::npos)
            quoted += '\\';
        if (c == '%')
            quoted += '%'; // alone it would begin a field code
        quoted += c;
    }
    return quoted + '"';
}

/// The value as written in a file: with escapes of its own, on top of those of the command line.
std::string fileValue(std::string_view value)
{
    constexpr std::string_view kSpecial = "\\\n\t\r";
    constexpr std::string_view kLetters = "\\ntr";
    std::string text;
    for (const char c : value) {
        const std::size_t at = kSpecial.find(c);
        if (at == std::string_view::npos)
            text += c;
        else
            (text += '\\') += kLetters[at];
    }
    return text;
}

} // namespace

std::optional<std::string> text(const std::string& program)
{
    if (!program.starts_with('/') || !PathText::isValidUtf8(program))
        return std::nullopt;
    std::string entry = "[Desktop Entry]\n"
                        "Type=Application\n"
                        "Name=Orlen\n"
                        "Exec=" +
                        fileValue(quotedWord(program)) + "\n" +
                        "Icon=" + std::string(OwnProgram::identifier()) +
                        "\n"
                        "Terminal=false\n"
                        "StartupNotify=true\n"
                        "X-GNOME-Autostart-enabled=true\n";
    const auto readBack = DesktopEntry::parsed(entry);
    const bool isKept = readBack && readBack->command("Exec") == std::vector{program};
    return isKept ? std::optional(std::move(entry)) : std::nullopt;
}

} // namespace orlen::OwnEntry
