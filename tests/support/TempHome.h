#pragma once

#include "platform/files/Places.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace orlen {

/// A home folder of the test program's own in a prepared root, which stands for the whole system: neither the
/// machine's programs nor the session of whoever runs the tests are seen, from before main on and by the
/// programs that a test starts. Make one per test: it starts empty, and no test reads or writes outside it.
/// As root the program gives up the powers that ignore permissions, so that denied means denied.
class TempHome {
public:
    TempHome();
    TempHome(const TempHome&) = delete;
    TempHome& operator=(const TempHome&) = delete;

    /// The home folder; with a relative name, the path of that name in it.
    [[nodiscard]] std::string path(std::string_view name = {}) const;
    /// The folder around the home folder; it also holds "Applications", "Library" and "system", which stand
    /// for the absolute ones, and "bin", which is all of PATH.
    [[nodiscard]] std::string outside(std::string_view name = {}) const;

    /// Makes a file (and its folders) and returns its path. Names are relative to the home folder, or
    /// absolute.
    std::string file(std::string_view name, std::string_view content = "x") const;
    /// Makes a file that occupies `bytes` on disk (a multiple of 4,096), filled with text made from `seed`.
    std::string fileOfSize(std::string_view name, std::int64_t bytes, unsigned seed = 1) const;
    std::string folder(std::string_view name) const;
    std::string link(std::string_view name, const std::string& target) const;
    /// Sets access and modification time of the path itself, not of a link's target.
    static void setTimes(const std::string& path, TimePoint accessed, TimePoint modified);
    static void setMode(const std::string& path, unsigned mode);
    [[nodiscard]] static std::string content(const std::string& path);
    [[nodiscard]] static bool exists(const std::string& path);

    /// Reads the places again from the environment and the files in the home folder, after which `change` may
    /// alter them.
    static void reloadPlaces(const std::function<void(Places&)>& change = {});
    /// Sets a variable for the rest of this test; the next TempHome takes it back.
    static void setVariable(const char* name, const std::string& value);
    /// Lets the machine's own programs be found behind those of the test; the next TempHome takes it back.
    static void useSystemTools();
};

} // namespace orlen
