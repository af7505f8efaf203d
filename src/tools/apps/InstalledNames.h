#pragma once

#include "tools/apps/AppInfo.h"

#include <set>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>

namespace orlen {

/// The names of everything installed, however it came here: packages, programs for the shell, launchers,
/// services, running programs, what lies in the home folder. Tells whether a folder's application may still
/// be there, and rather says yes too often. A plain value.
class InstalledNames {
public:
    /// Blocks on the disk. Incomplete when stopped.
    [[nodiscard]] static InstalledNames read(std::span<const AppInfo> listed, const std::stop_token& stop);

    /// Letters and digits only, in lower case: "Code - OSS" and "code-oss" are the same.
    [[nodiscard]] static std::string plain(std::string_view name);

    void add(std::string_view name);

    /// Whether a folder of this name may belong to something installed: one of the folder's words, or of its
    /// identifier's parts, is a name, begins with one, or begins one. Pure.
    [[nodiscard]] bool mayOwn(std::string_view folder) const;

    void addProgram(std::string_view name);
    /// Whether something in the menus starts a program of exactly this name. Pure.
    [[nodiscard]] bool isInMenus(std::string_view program) const;

private:
    [[nodiscard]] bool has(std::string_view plainWord) const;

    std::set<std::string, std::less<>> m_names;    ///< plain
    std::set<std::string, std::less<>> m_programs; ///< that launchers start; plain
};

} // namespace orlen
