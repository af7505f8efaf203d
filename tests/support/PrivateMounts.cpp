#include "support/PrivateMounts.h"

#include "support/Command.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <linux/capability.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace orlen {

namespace {

/// Of the powers that come with a new user namespace keeps the one to mount: permissions must go on to count.
void keepMountingOnly()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, 2> powers{};
    powers[0].effective = powers[0].permitted = 1U << CAP_SYS_ADMIN;
    ::syscall(SYS_capset, &header, powers.data());
}

bool enterUserNamespace()
{
    const std::string user = std::to_string(::geteuid());
    const std::string group = std::to_string(::getegid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << user << ' ' << user << " 1";
    std::ofstream("/proc/self/gid_map") << group << ' ' << group << " 1";
    keepMountingOnly();
    return true;
}

/// Once for the whole program; returns what stands in the way.
std::string enterNamespace()
{
    const bool isIn = ::geteuid() == 0 ? ::unshare(CLONE_NEWNS) == 0 : enterUserNamespace();
    if (!isIn)
        return std::string("no mount namespace: ") + std::strerror(errno);
    // Without this a mount would appear on the whole machine.
    if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return std::string("mounts cannot be made private: ") + std::strerror(errno);
    return {};
}

} // namespace

PrivateMounts::PrivateMounts()
{
    static const std::string obstacle = enterNamespace();
    m_obstacle = obstacle;
}

PrivateMounts::~PrivateMounts()
{
    for (; !m_targets.empty(); m_targets.pop_back())
        ::umount2(m_targets.back().c_str(), MNT_DETACH);
}

bool PrivateMounts::bind(const std::string& source, const std::string& target)
{
    if (::mount(source.c_str(), target.c_str(), nullptr, MS_BIND, nullptr) != 0)
        return false;
    m_targets.push_back(target);
    return true;
}

bool PrivateMounts::memory(std::size_t bytes, const std::string& target)
{
    const std::string options = "mode=0700,size=" + std::to_string(bytes);
    if (::mount("tmpfs", target.c_str(), "tmpfs", 0, options.c_str()) != 0)
        return false;
    m_targets.push_back(target);
    return true;
}

bool PrivateMounts::dead(const std::string& target)
{
    UniqueFd requests(::open("/dev/fuse", O_RDWR | O_CLOEXEC));
    const std::string options = "fd=" + std::to_string(requests.get()) +
                                ",rootmode=40000,user_id=" + std::to_string(::geteuid()) +
                                ",group_id=" + std::to_string(::getegid());
    if (::mount("gone:/", target.c_str(), "fuse.sshfs", 0, options.c_str()) != 0)
        return false;
    m_targets.push_back(target);
    m_silent.push_back(std::move(requests));
    return true;
}

bool PrivateMounts::disk(const std::string& image, const std::string& target)
{
    if (runCommand({"truncate", "-s", "8M", image}).status != 0 ||
        runCommand({"mkfs.ext4", "-q", "-F", image}).status != 0 ||
        runCommand({"mount", "-o", "loop", image, target}).status != 0)
        return false;
    m_targets.push_back(target);
    return true;
}

} // namespace orlen
