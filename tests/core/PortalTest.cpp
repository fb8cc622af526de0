#include "core/DesktopStyle.h"

#include "core/CoreTest.h"

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QProcess>
#include <QSemaphore>
#include <QThread>

using DesktopStyle::PortalSettings;

namespace {

/// Answers as the settings portal of a desktop, from a thread of its own.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit Portal(PortalSettings settings)
        : settings_(std::move(settings)) {}

public Q_SLOTS:
    Q_SCRIPTABLE PortalSettings ReadAll(const QStringList& groups) { // NOLINT: name of the bus
        EXPECT_TRUE(groups.contains(QStringLiteral("org.freedesktop.appearance")));
        return settings_;
    }

private:
    PortalSettings settings_;
};

class PortalThread : public QThread {
public:
    PortalThread(QString address, PortalSettings settings)
        : address_(std::move(address))
        , settings_(std::move(settings)) {
        start();
        ready_.acquire();
    }
    ~PortalThread() override {
        quit();
        wait();
    }

protected:
    void run() override {
        Portal portal(settings_);
        QDBusConnection bus = QDBusConnection::connectToBus(address_, QStringLiteral("portal"));
        EXPECT_TRUE(bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal,
                                       QDBusConnection::ExportScriptableSlots));
        EXPECT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
        ready_.release();
        exec();
        QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
    }

private:
    QString address_;
    PortalSettings settings_;
    QSemaphore ready_;
};

/// A session bus of its own.
class PortalTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        qDBusRegisterMetaType<PortalSettings>();
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--nofork"),
                       QStringLiteral("--print-address")});
        ASSERT_TRUE(daemon_.waitForStarted() && daemon_.waitForReadyRead(-1));
        address_ = QString::fromLatin1(daemon_.readLine().trimmed());
        qputenv("DBUS_SESSION_BUS_ADDRESS", address_.toLatin1());
    }
    void TearDown() override {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        daemon_.kill();
        daemon_.waitForFinished();
        CoreTest::TearDown();
    }

    QString address_;
    QProcess daemon_;
};

} // namespace

/// One test, because a process asks one session bus only.
TEST_F(PortalTest, ThePortalIsAskedIfItRunsAndIsNotStarted) {
    EXPECT_TRUE(DesktopStyle::FromPortal().isEmpty());
    const PortalThread portal(address_, {{QStringLiteral("org.freedesktop.appearance"),
                                          {{QStringLiteral("color-scheme"), 1U}}}});
    EXPECT_EQ(DesktopStyle::ToldBy(DesktopStyle::FromPortal()), StyleKind::Dark);
}

#include "PortalTest.moc"
