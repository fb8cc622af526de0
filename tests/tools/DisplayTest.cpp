#include "support/HalvaneTest.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace {

/// The program on the virtual display that run.sh starts if there is no other.
class DisplayTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        for (const char* name : {"users.mdb", "foods.mdb", "tips.txt", "agreement.txt"})
            ASSERT_TRUE(QFile::copy(Places::Build("/delivered/") + name, Path(name)));
        ASSERT_TRUE(QFile::copy(Places::Build("/src/halvane"), Path("halvane")));
        ASSERT_TRUE(QDir().mkpath(Path("config/Brindlewick")));
        QFile settings(Path("config/Brindlewick/HALVANE.ini"));
        ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
        settings.write("[General]\nEULA=YES\n");
    }
    QString Path(const char* name) const { return Folder() + u'/' + QLatin1String(name); }
    void Run(const QByteArray& script) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", Path("config"));
        environment.insert("XDG_RUNTIME_DIR", Folder());
        environment.insert("QT_QPA_PLATFORM", "xcb");
        environment.insert("PROGRAM", Path("halvane"));
        QProcess bash;
        bash.setProcessEnvironment(environment);
        bash.setWorkingDirectory(Places::Source(QString()));
        bash.start("bash", {"-c", QString::fromUtf8(script)});
        EXPECT_TRUE(bash.waitForFinished(60000));
        EXPECT_EQ(bash.exitCode(), 0) << bash.readAllStandardError().toStdString();
    }
};

} // namespace

/// Return closes the splash and begins the first profile. Without key events neither happens.
TEST_F(DisplayTest, KeysReachTheWindowWhereverThePointerIs) {
    Run(R"(
        set -eu
        source tools/display.sh
        trap clean_up EXIT
        start_display
        manage_windows
        xdotool mousemove 1279 799
        "$PROGRAM" &
        helpers+=($!)
        for _ in {1..150}; do
            ! xdotool search --onlyvisible --name '^User Profile$' || exit 0
            xdotool key Return
            sleep 0.2
        done
        echo "No key arrived." >&2
        exit 1
    )");
}
