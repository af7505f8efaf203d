#include "platform/files/FileRights.h"

#include "platform/files/UniqueFd.h"

#include <cstdint>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace orlen::FileRights {

namespace {

/// What is given up, in the kernel's form. Headers are often older than the running kernel.
struct Rights {
    std::uint64_t files = 0;
    std::uint64_t network = 0;
    std::uint64_t scopes = 0;
};

struct Addition {
    int version; ///< of Landlock that knows these first
    Rights rights;
};

constexpr Addition kAdditions[] = {
    {1, {0x1FFF, 0, 0}},   // opening, running, making, removing
    {2, {1U << 13, 0, 0}}, // moving to another folder
    {3, {1U << 14, 0, 0}}, // cutting off
    {4, {0, 0x3, 0}},      // listening and connecting
    {5, {1U << 15, 0, 0}}, // controlling devices
    {6, {0, 0, 0x3}},      // abstract sockets, signals
};
constexpr std::uint64_t kReading = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;

Rights known(int version)
{
    Rights all;
    for (const Addition& addition : kAdditions) {
        if (addition.version > version)
            break;
        all.files |= addition.rights.files;
        all.network |= addition.rights.network;
        all.scopes |= addition.rights.scopes;
    }
    return all;
}

constexpr const char* kFonts[] = {"/usr/share/fonts", "/usr/local/share/fonts", "/usr/share/poppler"};

bool allowReading(const UniqueFd& rules, const char* folder)
{
    const UniqueFd place(::open(folder, O_PATH | O_CLOEXEC));
    landlock_path_beneath_attr rule{};
    rule.allowed_access = kReading;
    rule.parent_fd = place.get();
    return place.isOpen() &&
           ::syscall(SYS_landlock_add_rule, rules.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
}

} // namespace

int giveUp(const Exceptions& exceptions)
{
    const auto version =
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION));
    if (version < 1)
        return 0;
    const Rights rights = known(version);
    // An older kernel accepts a longer structure if its end is zero.
    const UniqueFd rules(static_cast<int>(::syscall(SYS_landlock_create_ruleset, &rights, sizeof rights, 0)));
    if (!rules.isOpen() || (exceptions.processTable && !allowReading(rules, "/proc")))
        return 0;
    for (const char* folder : kFonts) {
        if (exceptions.fonts)
            (void)allowReading(rules, folder); // Not all of them exist.
    }
    const bool holds = ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
                       ::syscall(SYS_landlock_restrict_self, rules.get(), 0) == 0;
    return holds ? version : 0;
}

} // namespace orlen::FileRights
