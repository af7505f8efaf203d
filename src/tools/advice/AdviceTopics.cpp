#include "tools/advice/AdviceTopics.h"

#include "tools/advice/OldKernels.h"
#include "tools/advice/OldSnaps.h"
#include "tools/advice/UnusedRuntimes.h"

#include <algorithm>

namespace orlen {

namespace {

using Count = AdviceTopic::Count;

constexpr std::int64_t kSome = 1'000'000;
constexpr std::int64_t kMuch = 50'000'000;
/// What the command for the journal leaves, 200 MiB, and a little.
constexpr std::int64_t kJournal = 220'000'000;

// Texts of several rows
constexpr Text kDownloads = message("Downloaded packages");
// TRANSLATORS: Of Linux, beside the one that runs.
constexpr Text kOtherKernels = message("Other kernels");
constexpr Text kKernels =
    message("Updates add kernels beside the one that runs. The command removes those no longer needed.");
constexpr Text kAptKernels = message(
    "Updates add kernels beside the one that runs. The command removes those no longer needed, and other "
    "packages that nothing needs.");
constexpr Text kContainers = message(
    "Images, containers and volumes. The command removes stopped containers and what nothing uses any more; "
    "start the containers you want to keep first.");
constexpr Text kSnapshots = message(
    "Each snapshot holds on to what was changed or deleted after it, so deleting files frees nothing until "
    "it is gone.");
constexpr Text kSnapshotTitle = message("Snapshots");
constexpr Text kMachines =
    message("Disks of virtual machines. Remove a machine in the program that made it.");
// TRANSLATORS: {command} is a command to type.
constexpr Text kLinuxMachines = message("Linux machines for containers. Remove one with: {command}");
// TRANSLATORS: Baloo, the index that KDE searches for files.
constexpr Text kBaloo = message("File search of KDE");
constexpr Text kIndex =
    message("An index of file contents. The command starts it afresh, which takes a while.");

// One row is one thing to advise on: name, title, places; what counts, needed program, least size; text;
// command, the command in the text, finder.
constexpr AdviceTopic kTopics[] = {
    // Packages
    {"apt-packages",
     kDownloads,
     {"{ROOT}/var/cache/apt/archives"},
     Count::topFiles,
     "apt",
     kSome,
     message("APT keeps the packages it has installed. It downloads them again when needed."),
     "sudo apt clean"},
    {"dnf-packages",
     kDownloads,
     {"{ROOT}/var/cache/dnf", "{ROOT}/var/cache/libdnf5"},
     Count::everything,
     "dnf",
     kSome,
     message("DNF keeps lists of packages, and packages of updates that were not finished. It downloads them "
             "again."),
     "sudo dnf clean all"},
    {"pacman-packages",
     kDownloads,
     {"{ROOT}/var/cache/pacman/pkg"},
     Count::topFiles,
     "paccache",
     kSome,
     message(
         "pacman keeps every version it has installed. The command leaves the three newest of each package."),
     "sudo paccache -r"},
    {"pacman-packages",
     kDownloads,
     {"{ROOT}/var/cache/pacman/pkg"},
     Count::topFiles,
     "pacman",
     kSome,
     message("pacman keeps every version it has installed. The command leaves those that are installed now."),
     "sudo pacman -Sc"},
    {"zypper-packages",
     kDownloads,
     {"{ROOT}/var/cache/zypp"},
     Count::everything,
     "zypper",
     kSome,
     message("Zypper keeps lists of packages and may keep packages. It downloads them again when needed."),
     "sudo zypper clean --all"},
    {"kernels",
     kOtherKernels,
     {"{ROOT}/usr/lib/modules", "{ROOT}/lib/modules", "{ROOT}/boot"},
     Count::everything,
     "apt",
     kSome,
     kAptKernels,
     "sudo apt autoremove --purge",
     "",
     OldKernels::find},
    {"kernels",
     kOtherKernels,
     {"{ROOT}/usr/lib/modules", "{ROOT}/lib/modules", "{ROOT}/boot"},
     Count::everything,
     "dnf",
     kSome,
     kKernels,
     "sudo dnf remove --oldinstallonly",
     "",
     OldKernels::find},
    {"kernels",
     kOtherKernels,
     {"{ROOT}/usr/lib/modules", "{ROOT}/lib/modules", "{ROOT}/boot"},
     Count::everything,
     "zypper",
     kSome,
     kKernels,
     "sudo zypper purge-kernels",
     "",
     OldKernels::find},
    {"flatpak-runtimes",
     message("Unused Flatpak runtimes"),
     {"{DATA}/flatpak", "{ROOT}/var/lib/flatpak"},
     Count::everything,
     "flatpak",
     kSome,
     message(
         "Parts that Flatpak apps shared and that no installed app needs. Runtimes share files, so less may "
         "come free."),
     "flatpak uninstall --unused",
     "",
     UnusedRuntimes::find},
    {"snap-revisions",
     message("Older versions of Snap apps"),
     {"{ROOT}/var/lib/snapd/snaps"},
     Count::everything,
     "snap",
     kSome,
     message("Snap keeps the version before each update, to go back to. See them with: {command}"),
     "",
     "snap list --all",
     OldSnaps::find},
    {"nix-store",
     message("Nix store"),
     {"{ROOT}/nix/store"},
     Count::everything,
     "",
     kMuch,
     message(
         "Nix keeps all earlier states of your profile. The command removes them and what only they use."),
     "nix-collect-garbage -d"},

    // What the system writes
    {"journal",
     message("System journal"),
     {"{ROOT}/var/log/journal", "{ROOT}/run/log/journal"},
     Count::everything,
     "journalctl",
     kJournal,
     message("Messages of the system and its services, by default up to 4 GB. The command leaves the newest "
             "200 MB."),
     "sudo journalctl --vacuum-size=200M"},
    {"rotated-logs",
     message("Old log files"),
     {"{ROOT}/var/log"},
     Count::rotatedLogs,
     "",
     kMuch,
     message("Logs are put away after a day or a week, and kept for some time. The command removes those put "
             "away."),
     R"(sudo find {PLACES} -type f \( -name '*.gz' -o -name '*.xz' -o -name '*.zst' -o -name '*.[0-9]' \) -delete)"},
    {"core-dumps",
     message("Memory of crashed programs"),
     {"{ROOT}/var/lib/systemd/coredump"},
     Count::everything,
     "",
     kSome,
     message("When a program crashes, the system keeps what was in its memory for developers."),
     "sudo find {PLACES} -type f -delete"},
    {"crash-reports",
     message("Crash reports"),
     {"{ROOT}/var/crash", "{ROOT}/var/lib/apport/coredump"},
     Count::everything,
     "",
     kSome,
     message("Reports about programs that crashed. They are of use only to those who would send them."),
     "sudo find {PLACES} -type f -delete"},
    {"old-temporary-files",
     message("Your old temporary files"),
     {"{ROOT}/tmp", "{ROOT}/var/tmp"},
     Count::oldOwnFiles,
     "",
     kSome,
     message("Files of yours that have not changed for ten days. The command lists them."),
     "find {PLACES} -type f -user {UID} -ctime +9 -ls"},
    {"snapper-snapshots",
     kSnapshotTitle,
     {"{ROOT}/.snapshots", "{ROOT}/home/.snapshots"},
     Count::nothing,
     "snapper",
     0,
     kSnapshots,
     "sudo snapper cleanup number"},
    {"btrfs-snapshots",
     kSnapshotTitle,
     {"{ROOT}/.snapshots", "{ROOT}/home/.snapshots"},
     Count::nothing,
     "btrfs",
     0,
     kSnapshots,
     "sudo btrfs subvolume list -s /"},
    {"timeshift-snapshots",
     message("Timeshift snapshots"),
     {"{ROOT}/timeshift/snapshots", "{ROOT}/timeshift-btrfs", "{ROOT}/run/timeshift/backup/timeshift"},
     Count::nothing,
     "",
     0,
     kSnapshots,
     "sudo timeshift --list"},

    // Containers and virtual machines
    {"podman",
     message("Podman containers"),
     {"{DATA}/containers"},
     Count::everything,
     "podman",
     kSome,
     kContainers,
     "podman system prune"},
    {"podman-system",
     message("Podman containers of the system"),
     {"{ROOT}/var/lib/containers/storage"},
     Count::everything,
     "podman",
     kSome,
     kContainers,
     "sudo podman system prune"},
    {"docker",
     message("Docker containers"),
     {"{DATA}/docker"},
     Count::everything,
     "docker",
     kSome,
     kContainers,
     "docker system prune"},
    {"docker-system",
     message("Docker containers of the system"),
     {"{ROOT}/var/lib/docker"},
     Count::everything,
     "docker",
     kSome,
     kContainers,
     "sudo docker system prune"},
    {"libvirt",
     message("Virtual machines"),
     {"{DATA}/libvirt/images"},
     Count::everything,
     "",
     kMuch,
     kMachines,
     "virsh list --all"},
    {"libvirt-system",
     message("Virtual machines of the system"),
     {"{ROOT}/var/lib/libvirt/images"},
     Count::everything,
     "virsh",
     kMuch,
     kMachines,
     "sudo virsh list --all"},
    {"boxes",
     message("Virtual machines of Boxes"),
     {"{DATA}/gnome-boxes"},
     Count::everything,
     "",
     kMuch,
     message("Disks of virtual machines. Remove a machine in Boxes."),
     ""},
    {"waydroid",
     message("Android of Waydroid"),
     {"{DATA}/waydroid", "{ROOT}/var/lib/waydroid"},
     Count::everything,
     "waydroid",
     kMuch,
     message("An Android system with its apps. Remove apps in Waydroid."),
     "waydroid app list"},
    {"lima",
     message("Virtual machines of Lima"),
     {"{H}/.lima"},
     Count::everything,
     "",
     kMuch,
     kLinuxMachines,
     "limactl list",
     "limactl delete NAME"},
    {"colima",
     message("Virtual machines of Colima"),
     {"{H}/.colima"},
     Count::everything,
     "",
     kMuch,
     kLinuxMachines,
     "colima list",
     "colima delete NAME"},

    // What programs keep in the home folder
    {"steam-games",
     message("Games of Steam"),
     {"{STEAM}/steamapps/common"},
     Count::everything,
     "",
     kMuch,
     message("Uninstall a game in Steam. Saved games are elsewhere."),
     ""},
    {"ollama",
     message("Language models of Ollama"),
     {"{H}/.ollama/models", "{ROOT}/usr/share/ollama/.ollama/models"},
     Count::everything,
     "",
     kMuch,
     message("Each model takes gigabytes. Remove one with: {command}"),
     "ollama list",
     "ollama rm NAME"},
    {"uv-python",
     message("Python versions of uv"),
     {"{DATA}/uv/python"},
     Count::everything,
     "",
     kMuch,
     message("Projects use these versions of Python. Remove one with: {command}"),
     "uv python list --only-installed",
     "uv python uninstall VERSION"},
    {"rust-toolchains",
     message("Rust toolchains"),
     {"{H}/.rustup/toolchains"},
     Count::everything,
     "",
     kMuch,
     message("Each toolchain takes about a gigabyte. Remove one with: {command}"),
     "rustup toolchain list",
     "rustup toolchain uninstall NAME"},
    {"baloo", kBaloo, {"{DATA}/baloo"}, Count::everything, "balooctl6", kMuch, kIndex, "balooctl6 purge"},
    {"baloo", kBaloo, {"{DATA}/baloo"}, Count::everything, "balooctl", kMuch, kIndex, "balooctl purge"},
};

constexpr bool namesItsCommand(const AdviceTopic& topic)
{
    const bool hasPlace = topic.text.base().find("{command}") != std::string_view::npos;
    return hasPlace != topic.furtherCommand.empty();
}
static_assert(std::ranges::all_of(kTopics, namesItsCommand));

} // namespace

std::span<const AdviceTopic> adviceTopics()
{
    return kTopics;
}

} // namespace orlen
