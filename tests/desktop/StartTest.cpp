#include "window/shell/RunningInstance.h"

#include "PrivateBus.h"
#include "app/EventLoop.h"
#include "platform/files/UniqueFd.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>
#include <cstddef>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace orlen {

namespace {

/// The program started as from a desktop, with no display but a made-up one.
class Started {
public:
    explicit Started(const QMap<QString, QString>& variables)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY"})
            environment.remove(name);
        for (auto at = variables.begin(); at != variables.end(); ++at) {
            if (at.value().isEmpty())
                environment.remove(at.key());
            else
                environment.insert(at.key(), at.value());
        }
        m_process.setProcessEnvironment(environment);
        m_process.start(ORLEN_BINARY, QStringList());
    }

    /// The exit status; -1 when a signal ended it.
    int status()
    {
        EXPECT_TRUE(waitUntil([&] { return m_process.state() == QProcess::NotRunning; }));
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }
    QString complaint() { return QString::fromUtf8(m_process.readAllStandardError()); }
    QProcess& process() { return m_process; }

private:
    QProcess m_process;
};

/// An X display that answers nobody.
class DeafDisplay {
public:
    DeafDisplay()
    {
        sockaddr_un address{AF_UNIX, {}};
        // In the place behind the zero byte lie names without files.
        const std::string name = "/tmp/.X11-unix/X" + std::to_string(m_number);
        std::copy(name.begin(), name.end(), address.sun_path + 1);
        const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
        EXPECT_EQ(::bind(m_socket.get(), reinterpret_cast<const sockaddr*>(&address), length), 0);
        EXPECT_EQ(::listen(m_socket.get(), 1), 0);
    }
    [[nodiscard]] QString name() const { return QStringLiteral(":%1").arg(m_number); }
    [[nodiscard]] bool wasAsked() const
    {
        pollfd waiting{m_socket.get(), POLLIN, 0};
        return ::poll(&waiting, 1, 0) > 0;
    }

private:
    const int m_number = 10'000 + ::getpid() % 10'000;
    const UniqueFd m_socket{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
};

const QString kNoBus = QStringLiteral("unix:path=/nowhere");

} // namespace

TEST(StartTest, aSecondStartBringsTheFirstToTheFront)
{
    const TempHome home;
    RunningInstance first(QDBusConnection::sessionBus());
    ASSERT_EQ(first.claim({}), RunningInstance::Claim::ours);
    QSignalSpy activated(&first, &RunningInstance::activated);
    Started second({{"XDG_ACTIVATION_TOKEN", "from-the-menu"}});
    EXPECT_EQ(second.status(), 0);
    EXPECT_EQ(second.complaint(), "");
    ASSERT_EQ(activated.count(), 1);
    EXPECT_EQ(activated[0][0].value<LaunchToken>().wayland, "from-the-menu");
}

TEST(StartTest, withoutABusTheSecondStartSaysThatThereIsOne)
{
    const TempHome home;
    const QString folder = QString::fromStdString(home.folder("run"));
    const auto lock = FileLock::take(folder.toStdString() + "/io.github.orlen.Orlen.lock");
    ASSERT_TRUE(lock.ok());
    Started second({{"DBUS_SESSION_BUS_ADDRESS", kNoBus}, {"XDG_RUNTIME_DIR", folder}});
    EXPECT_EQ(second.status(), 1);
    EXPECT_EQ(second.complaint(), "orlen: Orlen is open already.\n");
}

TEST(StartTest, theWindowClosesWhenTheSessionAsksFor)
{
    const TempHome home;
    const QString folder = QString::fromStdString(home.folder("run"));
    for (const QString& bus : {kNoBus, qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS")}) {
        SCOPED_TRACE(qPrintable(bus));
        Started window({{"DBUS_SESSION_BUS_ADDRESS", bus}, {"XDG_RUNTIME_DIR", folder}});
        const std::string lock = folder.toStdString() + "/io.github.orlen.Orlen.lock";
        QTimer look;
        look.start(20); // wakes the loop below
        ASSERT_TRUE(waitUntil([&] {
            return bus == kNoBus ? TempHome::exists(lock)
                                 : QDBusConnection::sessionBus()
                                       .interface()
                                       ->isServiceRegistered("io.github.orlen.Orlen")
                                       .value();
        }));
        window.process().terminate();
        EXPECT_EQ(window.status(), 0) << qPrintable(window.complaint());
    }
}

TEST(StartTest, noBusIsStartedWhereTheSessionHasNone)
{
    const TempHome home;
    const DeafDisplay display; // on which the tool that starts buses would leave a note
    const std::string lock = home.outside("run/io.github.orlen.Orlen.lock");
    Started window({{"DBUS_SESSION_BUS_ADDRESS", {}}, {"DISPLAY", display.name()}});
    QTimer look;
    look.start(20);
    EXPECT_TRUE(waitUntil([&] { return TempHome::exists(lock); }));
    EXPECT_FALSE(display.wasAsked());
    window.process().terminate();
    EXPECT_EQ(window.status(), 0) << qPrintable(window.complaint());
}

TEST(StartTest, aDisplayThatCannotBeUsedIsToldInASentence)
{
    struct Case {
        const char* name;
        QMap<QString, QString> variables;
        int status;
        const char* complaint;
    };
    const Case cases[] = {
        {"none",
         {},
         2,
         "orlen: there is no display to open a window on; `orlen scan` looks at your home folder here."},
        {"a screen nobody serves",
         {{"DISPLAY", ":4711"}},
         1,
         "orlen: the window cannot be opened on this display; `orlen scan` works without one."},
        {"a compositor that is gone",
         {{"WAYLAND_DISPLAY", "wayland-4711"}},
         1,
         "orlen: the window cannot be opened on this display; `orlen scan` works without one."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TempHome home;
        QMap<QString, QString> variables = c.variables;
        variables.insert("QT_QPA_PLATFORM", {});
        Started window(variables);
        EXPECT_EQ(window.status(), c.status);
        EXPECT_EQ(window.complaint().section('\n', 0, 0), c.complaint);
    }
}

} // namespace orlen
