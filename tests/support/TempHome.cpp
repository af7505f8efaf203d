#include "support/TempHome.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <linux/capability.h>
#include <sstream>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace orlen {

namespace {

namespace fs = std::filesystem;

/// Gives up, for this thread and all that it starts, the powers by which root reads and writes everything.
void dropPowers()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, 2> powers{};
    if (::syscall(SYS_capget, &header, powers.data()) != 0)
        return;
    for (const unsigned power : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH, CAP_FOWNER})
        powers[0].effective &= ~(1U << power);
    ::syscall(SYS_capset, &header, powers.data());
}

/// Lives as long as the program; made before main, so before anything asks for the home folder.
class Sandbox {
public:
    Sandbox()
    {
        dropPowers();
        std::string form = (fs::temp_directory_path() / "orlen-test-XXXXXX").string();
        if (::mkdtemp(form.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        m_root = fs::canonical(form).string();
        apply();
    }
    ~Sandbox() { empty(true); }
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;

    [[nodiscard]] const std::string& root() const { return m_root; }

    void apply() const
    {
        fs::create_directories(m_root + "/home");
        fs::create_directories(m_root + "/Applications");
        fs::create_directories(m_root + "/Library");
        fs::create_directories(m_root + "/system");
        ::setenv("HOME", (m_root + "/home").c_str(), 1);
        for (const char* name :
             {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "ANDROID_AVD_HOME",
              "LANGUAGE", "LC_ALL", "LC_MESSAGES", "XDG_DATA_DIRS", "XDG_CONFIG_DIRS", "NO_COLOR"})
            ::unsetenv(name);
        ::setenv("LANG", "C.UTF-8", 1);
        TempHome::reloadPlaces();
    }

    void empty(bool wholly) const
    {
        // A test may have left folders that nobody may write to.
        std::error_code ignored;
        for (fs::recursive_directory_iterator it(m_root, ignored), end; it != end; it.increment(ignored)) {
            if (it->is_directory(ignored) && !it->is_symlink(ignored))
                fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
        }
        for (const auto& entry : fs::directory_iterator(m_root, ignored))
            fs::remove_all(entry.path(), ignored);
        if (wholly)
            fs::remove(m_root, ignored);
    }

private:
    std::string m_root;
};

Sandbox sandbox;

void check(bool worked, const std::string& what)
{
    if (!worked)
        throw std::runtime_error("cannot prepare " + what);
}

std::string absolute(const TempHome& home, std::string_view name)
{
    return name.starts_with('/') ? std::string(name) : home.path(name);
}

timespec toTimespec(TimePoint time)
{
    const auto nanoseconds =
        std::chrono::duration_cast<std::chrono::nanoseconds>(time.time_since_epoch()).count();
    return {nanoseconds / 1'000'000'000, nanoseconds % 1'000'000'000};
}

} // namespace

TempHome::TempHome()
{
    sandbox.empty(false);
    sandbox.apply();
}

std::string TempHome::path(std::string_view name) const
{
    return outside(name.empty() ? std::string("home") : "home/" + std::string(name));
}

std::string TempHome::outside(std::string_view name) const
{
    return name.empty() ? sandbox.root() : sandbox.root() + "/" + std::string(name);
}

std::string TempHome::file(std::string_view name, std::string_view content) const
{
    std::string path = absolute(*this, name);
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream out(path, std::ios::binary);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    out.close();
    check(out.good(), path);
    return path;
}

std::string TempHome::fileOfSize(std::string_view name, std::int64_t bytes, unsigned seed) const
{
    std::string block(4096, ' ');
    std::string content;
    content.reserve(static_cast<std::size_t>(bytes));
    for (unsigned state = seed; content.size() < static_cast<std::size_t>(bytes);) {
        for (char& c : block) {
            state = state * 1'664'525U + 1'013'904'223U;
            c = static_cast<char>('a' + (state >> 24U) % 26U);
        }
        content.append(block, 0, static_cast<std::size_t>(bytes) - content.size());
    }
    return file(name, content);
}

std::string TempHome::folder(std::string_view name) const
{
    std::string path = absolute(*this, name);
    fs::create_directories(path);
    return path;
}

std::string TempHome::link(std::string_view name, const std::string& target) const
{
    std::string path = absolute(*this, name);
    fs::create_directories(fs::path(path).parent_path());
    fs::create_symlink(target, path);
    return path;
}

void TempHome::setTimes(const std::string& path, TimePoint accessed, TimePoint modified)
{
    const std::array<timespec, 2> times{toTimespec(accessed), toTimespec(modified)};
    check(::utimensat(AT_FDCWD, path.c_str(), times.data(), AT_SYMLINK_NOFOLLOW) == 0, path);
}

void TempHome::setMode(const std::string& path, unsigned mode)
{
    check(::chmod(path.c_str(), mode) == 0, path);
}

std::string TempHome::content(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream all;
    all << in.rdbuf();
    return all.str();
}

bool TempHome::exists(const std::string& path)
{
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0;
}

void TempHome::reloadPlaces(const std::function<void(Places&)>& change)
{
    Places places = Places::fromEnvironment();
    places.applications = sandbox.root() + "/Applications";
    places.library = sandbox.root() + "/Library";
    places.systemRoot = sandbox.root() + "/system";
    if (change)
        change(places);
    Places::setCurrent(std::move(places));
}

void TempHome::setVariable(const char* name, const std::string& value)
{
    ::setenv(name, value.c_str(), 1);
}

} // namespace orlen
