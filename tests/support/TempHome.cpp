#include "support/TempHome.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <linux/capability.h>
#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

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
    for (const int power : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH, CAP_FOWNER})
        powers[0].effective &= ~(1U << power);
    ::syscall(SYS_capset, &header, powers.data());
}

/// Takes away what the session of whoever runs the tests has put into the environment: desktop, languages,
/// buses, folders. What steers the test programs themselves stays.
void leaveSession()
{
    constexpr std::string_view kKept[] = {"GTEST_", "ASAN_", "UBSAN_", "TSAN_", "LSAN_", "LLVM_", "LD_",
                                          "TMPDIR",
                                          // How often the harnesses try.
                                          "ORLEN_KILLS", "ORLEN_FAULTS"};
    std::vector<std::string> names;
    for (char** variable = ::environ; *variable != nullptr; ++variable) {
        const std::string_view text(*variable);
        if (std::none_of(std::begin(kKept), std::end(kKept),
                         [&](std::string_view start) { return text.starts_with(start); }))
            names.emplace_back(text.substr(0, text.find('=')));
    }
    for (const std::string& name : names)
        ::unsetenv(name.c_str());
    // Without an address, one is looked for.
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
    ::setenv("LANG", "C.UTF-8", 1);
}

std::optional<std::string> variable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

/// Lives as long as the program; made before main, so before anything asks for the home folder.
class Sandbox {
public:
    Sandbox()
    {
        dropPowers();
        m_tools = variable("PATH").value_or("/usr/bin:/bin");
        leaveSession();
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

    void apply()
    {
        for (const char* name : {"home", "Applications", "Library", "system", "bin", "run"})
            fs::create_directories(m_root + "/" + name);
        fs::permissions(m_root + "/run", fs::perms::owner_all);
        for (const auto& [name, value] : m_before) {
            if (value)
                ::setenv(name.c_str(), value->c_str(), 1);
            else
                ::unsetenv(name.c_str());
        }
        m_before.clear();
        ::setenv("HOME", (m_root + "/home").c_str(), 1);
        ::setenv("PATH", (m_root + "/bin").c_str(), 1);
        ::setenv("XDG_RUNTIME_DIR", (m_root + "/run").c_str(), 1);
        ::setenv("ORLEN_PREPARED_ROOT", m_root.c_str(), 1);
        TempHome::reloadPlaces();
    }

    void set(const char* name, const std::string& value)
    {
        m_before.try_emplace(name, variable(name));
        ::setenv(name, value.c_str(), 1);
    }

    void useSystemTools() { set("PATH", m_root + "/bin:" + m_tools); }

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
    std::string m_tools; ///< where the machine has its programs, a list as in PATH
    std::map<std::string, std::optional<std::string>> m_before; ///< variables that the test has changed
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
    if (change)
        change(places);
    Places::setCurrent(std::move(places));
}

void TempHome::setVariable(const char* name, const std::string& value)
{
    sandbox.set(name, value);
}

void TempHome::useSystemTools()
{
    sandbox.useSystemTools();
}

} // namespace orlen
