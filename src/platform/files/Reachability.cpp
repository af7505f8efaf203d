#include "platform/files/Reachability.h"

#include "platform/files/MountProbe.h"
#include "platform/files/MountTable.h"
#include "platform/text/PathText.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <map>
#include <memory>
#include <mutex>
#include <string_view>
#include <unistd.h>

namespace orlen::Reachability {

namespace {

constexpr const char* kKernelTable = "/proc/self/mountinfo";
/// The kernel's own limit per path.
constexpr int kMostLinks = 40;

enum class Asking { whenNeeded, always, ahead };

/// A mount that may not answer.
struct Doubtful {
    std::uint64_t id = 0;
    bool isBelowHome = false;
    std::shared_ptr<MountProbe> probe;
    std::atomic<bool> isAdmitted{false};
    std::atomic<bool> wasNeeded{false};

    bool mayEnter(Asking asking)
    {
        if (asking == Asking::ahead) {
            probe->ask();
            return probe->hasAnswered();
        }
        wasNeeded = true;
        if (asking == Asking::always)
            isAdmitted = true;
        return isBelowHome && !isAdmitted ? probe->hasAnswered() : probe->answers();
    }
};

/// By mount point. Usually few: a desktop has two or three of these outside the home folder.
using DoubtfulMounts = std::map<std::string, std::shared_ptr<Doubtful>, std::less<>>;

std::shared_ptr<Doubtful> judgedLater(const Mount& mount, const std::string& home,
                                      const DoubtfulMounts& before)
{
    auto doubtful = std::make_shared<Doubtful>();
    doubtful->id = mount.id;
    doubtful->isBelowHome = !home.empty() && mount.point != home && PathText::isAtOrBelow(mount.point, home);
    if (const auto old = before.find(mount.point); old != before.end() && old->second->id == mount.id) {
        doubtful->isAdmitted = old->second->isAdmitted.load();
        doubtful->wasNeeded = old->second->wasNeeded.load();
        if (!old->second->probe->hasAnswered())
            doubtful->probe = old->second->probe;
    }
    if (!doubtful->probe)
        doubtful->probe = std::make_shared<MountProbe>(mount.point);
    return doubtful;
}

DoubtfulMounts doubtfulAmong(const MountTable& table, const std::string& home, const DoubtfulMounts& before)
{
    DoubtfulMounts found;
    for (const Mount& mount : table.mounts()) {
        // A later mount hides an earlier one on the same point.
        found.erase(mount.point);
        if (MountTable::mayNotAnswer(mount.type))
            found.emplace(mount.point, judgedLater(mount, home, before));
    }
    return found;
}

/// The mounts of the last refresh. They are consulted for every path, so each thread keeps its own reference
/// and takes the lock only after a refresh.
class Current {
public:
    void refresh(const std::string& mountTable, const std::string& home)
    {
        const MountTable table = MountTable::read(mountTable);
        const std::lock_guard guard(m_lock);
        m_mounts = std::make_shared<DoubtfulMounts>(
            doubtfulAmong(table, home, m_mounts ? *m_mounts : DoubtfulMounts()));
        ++m_generation;
    }

    [[nodiscard]] std::uint64_t generation()
    {
        std::call_once(m_first, [this] {
            if (m_generation == 0)
                refresh(kKernelTable, {});
        });
        return m_generation.load(std::memory_order_acquire);
    }

    [[nodiscard]] std::shared_ptr<const DoubtfulMounts> mounts()
    {
        const std::lock_guard guard(m_lock);
        return m_mounts;
    }

private:
    std::once_flag m_first;
    std::atomic<std::uint64_t> m_generation{0};
    std::mutex m_lock;
    std::shared_ptr<const DoubtfulMounts> m_mounts;
};

Current& current()
{
    static Current instance;
    return instance;
}

enum class Way { leads, breaksOff, isSilent };

/// A thread's copy of the mounts, and the last folder it found reachable: paths come in runs from the same
/// folder.
class Judge {
public:
    Result<void> judge(const std::string& path, LastLink last, Asking asking)
    {
        update();
        if (m_mounts->empty())
            return {};
        const std::string whole = absolute(path);
        const std::string_view name = PathText::lastComponent(whole);
        const bool isPlain = last == LastLink::kept && !whole.ends_with('/') && name != "." && name != "..";
        std::string folder;
        const Way way = follow(isPlain ? PathText::parent(whole) : std::string_view(whole), asking, folder);
        const bool isReachable =
            way == Way::breaksOff ||
            (way == Way::leads && (!isPlain || mayEnter(PathText::join(folder, name), asking)));
        if (!isReachable)
            return Errno{ETIMEDOUT};
        return {};
    }

private:
    void update()
    {
        if (const std::uint64_t newest = current().generation(); newest != m_generation) {
            m_mounts = current().mounts();
            m_generation = newest;
            m_known.clear();
        }
    }

    static std::string absolute(const std::string& path)
    {
        if (path.starts_with('/'))
            return path;
        // The kernel answers this from memory.
        std::array<char, PATH_MAX> folder{};
        const char* here = ::getcwd(folder.data(), folder.size());
        return PathText::join(here == nullptr ? "/" : here, path);
    }

    [[nodiscard]] bool mayEnter(const std::string& path, Asking asking) const
    {
        const auto mount = m_mounts->find(path);
        return mount == m_mounts->end() || mount->second->mayEnter(asking);
    }

    /// Follows the path and puts its link-free form into `place`.
    Way follow(std::string_view path, Asking asking, std::string& place)
    {
        std::string_view rest = path;
        place = "/";
        if (!m_known.empty() && PathText::isAtOrBelow(path, m_known) && asking == Asking::whenNeeded) {
            rest.remove_prefix(m_known.size());
            place = m_knownPlace;
        } else if (!mayEnter(place, asking)) {
            return Way::isSilent;
        }
        const Way way = goOn(rest, asking, place);
        if (way == Way::leads) {
            m_known = path;
            m_knownPlace = place;
        }
        return way;
    }

    Way goOn(std::string_view rest, Asking asking, std::string& place) const
    {
        std::string ahead(rest);
        int links = 0;
        for (std::size_t at = 0; at < ahead.size();) {
            const std::size_t end = std::min(ahead.find('/', at), ahead.size());
            const std::string name = ahead.substr(at, end - at);
            at = end + 1;
            if (name.empty() || name == ".")
                continue;
            if (name == "..") {
                place = PathText::parent(place);
                continue;
            }
            std::string next = PathText::join(place, name);
            if (!mayEnter(next, asking))
                return Way::isSilent;
            std::array<char, PATH_MAX> target; // NOLINT(cppcoreguidelines-pro-type-member-init)
            const auto length = ::readlink(next.c_str(), target.data(), target.size());
            if (length < 0) {
                // The kernel will fail the same way without asking anybody.
                if (errno != EINVAL)
                    return Way::breaksOff;
                place = std::move(next);
                continue;
            }
            if (++links > kMostLinks)
                return Way::breaksOff;
            const std::string_view text(target.data(), static_cast<std::size_t>(length));
            ahead = std::string(text) + '/' + ahead.substr(std::min(at, ahead.size()));
            at = 0;
            if (text.starts_with('/'))
                place = "/";
        }
        return Way::leads;
    }

    std::uint64_t m_generation = 0;
    std::shared_ptr<const DoubtfulMounts> m_mounts;
    std::string m_known; ///< as it was spelled
    std::string m_knownPlace;
};

Judge& judge()
{
    thread_local Judge mine;
    return mine;
}

} // namespace

Result<void> check(const std::string& path, LastLink last)
{
    return judge().judge(path, last, Asking::whenNeeded);
}

Result<void> admit(const std::string& path)
{
    return judge().judge(path, LastLink::followed, Asking::always);
}

void askAhead(const std::string& path)
{
    (void)judge().judge(path, LastLink::followed, Asking::ahead);
}

void refresh(const std::string& mountTable, const std::string& home)
{
    current().refresh(mountTable, home);
}

std::vector<LeftOut> leftOut()
{
    std::vector<LeftOut> points;
    const auto mounts = current().mounts();
    if (!mounts)
        return points;
    for (const auto& [point, mount] : *mounts) {
        if (mount->wasNeeded && !mount->probe->hasAnswered())
            points.push_back(
                {point, mount->probe->isAsked() ? LeftOut::Reason::silent : LeftOut::Reason::unasked});
    }
    return points;
}

} // namespace orlen::Reachability
