#include "tools/advice/Advice.h"

#include "app/Sizes.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fcntl.h>
#include <unistd.h>

namespace orlen {

namespace {

constexpr std::int64_t kMiB = 1024 * kKiB;
constexpr std::int64_t kSize = 4 * kMiB;
constexpr std::int64_t kLarge = 52 * kMiB;

/// A machine whose programs and files stand in a prepared root.
struct Machine : TempHome {
    [[nodiscard]] std::string system(std::string_view name) const
    {
        return outside("system/" + std::string(name));
    }
    void program(std::string_view name) const { file(system("usr/bin/" + std::string(name))); }
    /// A file of which nothing but the size matters: room is set aside for it.
    std::string room(const std::string& name, std::int64_t bytes) const
    {
        std::string path = file(name);
        const int fd = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
        EXPECT_EQ(::posix_fallocate(fd, 0, bytes), 0);
        ::close(fd);
        return path;
    }
    std::string filler(std::string_view name, std::int64_t bytes = kSize) const
    {
        return room(system(name), bytes);
    }
    void kernel(const std::string& release) const
    {
        filler("usr/lib/modules/" + release + "/modules.bin");
        filler("boot/vmlinuz-" + release);
    }
    void runningKernel(const std::string& release) const
    {
        file(system("proc/sys/kernel/osrelease"), release + "\n");
        kernel(release);
    }

    static std::vector<AdviceItem> advice() { return Advice::collect(std::chrono::system_clock::now()); }
    /// The advice of that name; empty, with a failure, when there is none.
    static AdviceItem named(std::string_view topic)
    {
        for (const AdviceItem& item : advice()) {
            if (item.topic == topic)
                return item;
        }
        ADD_FAILURE() << "no advice " << topic;
        return {};
    }
    static std::vector<std::string> topics()
    {
        std::vector<std::string> topics;
        for (const AdviceItem& item : advice())
            topics.push_back(item.topic);
        return topics;
    }
};

} // namespace

TEST(AdviceTest, emptyMachineNeedsNone)
{
    const Machine machine;
    EXPECT_TRUE(Machine::topics().empty());
    machine.folder(machine.system("var/cache/apt/archives"));
    machine.folder(machine.system("var/log/journal"));
    machine.folder(machine.system("boot"));
    machine.program("apt");
    machine.program("journalctl");
    EXPECT_TRUE(Machine::topics().empty()) << "places without content are not worth a word";
}

TEST(AdviceTest, commandIsThatOfTheDistribution)
{
    struct Case {
        const char* name;
        std::vector<const char*> programs;
        const char* place;
        const char* topic;
        const char* command;
    };
    const Case cases[] = {
        {"Debian", {"apt"}, "var/cache/apt/archives/a.deb", "apt-packages", "sudo apt clean"},
        {"Fedora", {"dnf"}, "var/cache/dnf/updates-1/packages/a.rpm", "dnf-packages", "sudo dnf clean all"},
        {"newer Fedora",
         {"dnf"},
         "var/cache/libdnf5/updates-1/repodata/a",
         "dnf-packages",
         "sudo dnf clean all"},
        {"Arch", {"pacman"}, "var/cache/pacman/pkg/a.pkg.tar.zst", "pacman-packages", "sudo pacman -Sc"},
        {"Arch with its tools",
         {"pacman", "paccache"},
         "var/cache/pacman/pkg/a",
         "pacman-packages",
         "sudo paccache -r"},
        {"openSUSE",
         {"zypper"},
         "var/cache/zypp/packages/repo/a.rpm",
         "zypper-packages",
         "sudo zypper clean --all"},
        {"KDE", {"balooctl"}, nullptr, nullptr, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Machine machine;
        for (const char* program : c.programs)
            machine.program(program);
        if (c.place == nullptr) {
            EXPECT_TRUE(Machine::topics().empty());
            continue;
        }
        machine.filler(c.place);
        const AdviceItem item = Machine::named(c.topic);
        EXPECT_EQ(item.command, c.command);
        EXPECT_EQ(item.size, kSize);
        EXPECT_EQ(item.known, AdviceItem::Known::all);
        EXPECT_EQ(Machine::topics().size(), 1U);
    }
}

TEST(AdviceTest, toolOfAnotherDistributionIsNotAdvised)
{
    const Machine machine;
    machine.filler("var/cache/apt/archives/a.deb");
    EXPECT_TRUE(Machine::topics().empty()) << "without apt, nobody could run its command";
}

TEST(AdviceTest, kernelsBesideTheRunningOneCount)
{
    const Machine machine;
    machine.program("apt");
    machine.runningKernel("6.1.0-25-amd64");
    EXPECT_TRUE(Machine::topics().empty());
    machine.kernel("6.1.0-18-amd64");
    machine.filler("usr/lib/modules/5.10.0-left/dkms.ko"); // without a kernel
    const AdviceItem item = Machine::named("kernels");
    EXPECT_EQ(item.size, 2 * kSize);
    EXPECT_EQ(item.command, "sudo apt autoremove --purge");
    machine.file(machine.system("proc/sys/kernel/osrelease"), "");
    EXPECT_TRUE(Machine::topics().empty()) << "without knowing which one runs, none is called old";
}

TEST(AdviceTest, whatMayNotBeReadIsSaid)
{
    const Machine machine;
    machine.program("docker");
    machine.program("podman");
    machine.filler("var/lib/docker/overlay2/a");
    machine.room(".local/share/containers/storage/a", kSize);
    machine.room(".local/share/containers/storage/locked/b", kSize);
    TempHome::setMode(machine.system("var/lib/docker"), 0);
    TempHome::setMode(machine.path(".local/share/containers/storage/locked"), 0);

    machine.filler("var/log/private/a.gz", kLarge);
    TempHome::setMode(machine.system("var/log/private"), 0);
    EXPECT_EQ(Machine::topics().size(), 2U)
        << "the logs can be looked into, and none that can be seen was put away";

    const AdviceItem docker = Machine::named("docker-system");
    EXPECT_EQ(docker.known, AdviceItem::Known::nothing);
    EXPECT_EQ(docker.size, 0);
    EXPECT_EQ(docker.sizeText().base(), "needs administrator rights");
    EXPECT_EQ(docker.command, "sudo docker system prune");
    const AdviceItem podman = Machine::named("podman");
    EXPECT_EQ(podman.known, AdviceItem::Known::part);
    EXPECT_EQ(podman.size, kSize);
    EXPECT_EQ(podman.sizeText().base(), "at least 4.2 MB");
}

TEST(AdviceTest, unusedFlatpakRuntimesCount)
{
    const Machine machine;
    machine.program("flatpak");
    const auto install = [&](const std::string& ref, const std::string& description) {
        const std::string folder = "var/lib/flatpak/" + ref + "/0123abc/";
        machine.file(machine.system(folder + "metadata"), description);
        machine.filler(folder + "files/lib");
    };
    install("app/org.a.App/x86_64/stable", "[Application]\nname=org.a.App\nruntime=org.p.Platform/x86_64/45\n"
                                           "sdk=org.p.Sdk/x86_64/45\n");
    install("runtime/org.p.Platform/x86_64/45",
            "[Runtime]\nname=org.p.Platform\n[Extension org.f.Platform.GL]\nversions=23.08;1.4\n");
    install("runtime/org.p.Platform.Locale/x86_64/45",
            "[ExtensionOf]\nref=runtime/org.p.Platform/x86_64/45\n");
    install("runtime/org.f.Platform.GL.default/x86_64/23.08",
            "[ExtensionOf]\nref=runtime/org.f.Platform/x86_64/23.08\n");
    machine.filler("var/lib/flatpak/runtime/org.strange/x86_64/1/abc/files/lib"); // no description
    EXPECT_TRUE(Machine::topics().empty());

    install("runtime/org.p.Platform/x86_64/40", "[Runtime]\nname=org.p.Platform\n");
    install("runtime/org.p.Platform.Locale/x86_64/40",
            "[ExtensionOf]\nref=runtime/org.p.Platform/x86_64/40\n");
    install("runtime/org.f.Platform.GL.default/x86_64/21.08",
            "[ExtensionOf]\nref=runtime/org.f.Platform/x86_64/21.08\n");
    const AdviceItem item = Machine::named("flatpak-runtimes");
    EXPECT_GE(item.size, 3 * kSize);
    EXPECT_LT(item.size, 4 * kSize);
    EXPECT_EQ(item.places, std::vector{machine.system("var/lib/flatpak")});
}

TEST(AdviceTest, olderRevisionsOfSnapsAreSpelledOut)
{
    const Machine machine;
    machine.program("snap");
    for (const char* name : {"core22_1", "core22_12", "reverted_5", "reverted_7", "reverted_9", "own_x1",
                             "one_3", "a; rm -rf ~_1", "a; rm -rf ~_2"})
        machine.filler("var/lib/snapd/snaps/" + std::string(name) + ".snap");
    machine.folder(machine.system("snap/reverted"));
    machine.link(machine.system("snap/reverted/current"), "5");
    const AdviceItem item = Machine::named("snap-revisions");
    EXPECT_EQ(item.size, 2 * kSize);
    EXPECT_EQ(item.command, "sudo snap remove core22 --revision=1 && sudo snap remove reverted --revision=7");
    EXPECT_TRUE(item.text.base().ends_with(" See them with: snap list --all"));
}

TEST(AdviceTest, logsAndJournalCountApart)
{
    const Machine machine;
    machine.program("journalctl");
    machine.filler("var/log/syslog", kLarge);
    machine.filler("var/log/syslog.1", kLarge);
    machine.filler("var/log/nginx/access.log.2.gz", kLarge);
    machine.filler("var/log/journal/id/system.journal", 300 * kMiB);
    machine.filler("var/log/journal/id/system.gz");
    EXPECT_EQ(Machine::named("rotated-logs").size, 2 * kLarge);
    // A large file may need a block or two of its own for where its parts lie.
    EXPECT_NEAR(static_cast<double>(Machine::named("journal").size), 304.0 * kMiB, 0.1 * kMiB);
}

TEST(AdviceTest, onlyOldTemporaryFilesCount)
{
    using std::chrono::days;
    const Machine machine;
    machine.filler("var/tmp/build/a");
    const TimePoint now = std::chrono::system_clock::now();
    EXPECT_TRUE(Advice::collect(now + days(9)).empty());
    const std::vector<AdviceItem> later = Advice::collect(now + days(11));
    ASSERT_EQ(later.size(), 1U);
    EXPECT_EQ(later.front().size, kSize);
    EXPECT_EQ(later.front().command, "find " + machine.system("var/tmp") + " -type f -user " +
                                         std::to_string(Places::current().user) + " -ctime +9 -ls");
}

TEST(AdviceTest, linkIsNotFollowedAndSnapshotsHaveNoSize)
{
    const Machine machine;
    machine.room("models/a", kLarge);
    machine.folder(".ollama");
    machine.link(".ollama/models", machine.path("models"));
    EXPECT_TRUE(Machine::topics().empty());
    machine.filler(".snapshots/1/snapshot/a");
    machine.program("snapper");
    const AdviceItem item = Machine::named("snapper-snapshots");
    EXPECT_EQ(item.known, AdviceItem::Known::shared);
    EXPECT_EQ(item.size, 0);
}

TEST(AdviceTest, pathAndCategoryLeadToTheirAdvice)
{
    const Machine machine;
    machine.program("docker");
    machine.program("journalctl");
    machine.room(".rustup/toolchains/stable/lib", kLarge);
    machine.filler("var/log/journal/a", 300 * kMiB);
    machine.filler("var/log/a.gz", kLarge);
    const std::vector<AdviceItem> advice = Machine::advice();
    ASSERT_EQ(advice.size(), 3U);
    const auto topicOf = [&](const std::string& path) {
        const AdviceItem* item = Advice::forPath(advice, path);
        return item == nullptr ? std::string() : item->topic;
    };
    EXPECT_EQ(topicOf(machine.path(".rustup/toolchains/stable")), "rust-toolchains");
    EXPECT_EQ(topicOf(machine.path(".rustup")), "");
    EXPECT_EQ(topicOf(machine.system("var/log/journal/x")), "journal");
    EXPECT_EQ(topicOf(machine.system("var/log/x")), "rotated-logs");

    const std::vector<CategoryFolder> folders = {{OrlenCategory::developer, machine.path(".rustup")}};
    EXPECT_EQ(Advice::forCategory(advice, OrlenCategory::developer, folders).size(), 1U);
    EXPECT_EQ(Advice::forCategory(advice, OrlenCategory::system, folders).size(), 2U);
    EXPECT_TRUE(Advice::forCategory(advice, OrlenCategory::caches, folders).empty());
}

} // namespace orlen
