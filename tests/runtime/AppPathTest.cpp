#include "runtime/AppPath.h"
#include "support/Places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(AppPath, IsTheFolderOfTheProgramUntilItIsSet) {
    SetApplicationPath({});
    EXPECT_EQ(ApplicationPath(), QCoreApplication::applicationDirPath());
    EXPECT_EQ(RecordsPath(), QCoreApplication::applicationDirPath());
}

TEST(AppPath, AFileStandsBesideTheProgramWithOrWithoutATrailingSeparator) {
    for (const char* path : {"/opt/halvane", "/opt/halvane/"}) {
        SetApplicationPath(QString::fromLatin1(path));
        EXPECT_EQ(FileBeside("users.mdb").toStdString(), "/opt/halvane/users.mdb");
    }
    SetApplicationPath("/");
    EXPECT_EQ(FileBeside("tips.txt").toStdString(), "/tips.txt");
    SetApplicationPath({});
}

/// A program in a folder `bin`, which says where it finds its files.
class InstalledProgramTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(Path("")).mkpath("bin"));
        ASSERT_TRUE(QDir(Path("")).mkpath("share/halvane"));
        ASSERT_TRUE(QFile::copy(Places::Build("/tests/path_teller"), Path("/bin/program")));
    }

    QString Path(const char* below) const {
        return QFileInfo(folder_.path()).canonicalFilePath() + QLatin1String(below);
    }
    void DeliverTo(const char* place) const {
        QFile tips(Path(place) + "/tips.txt");
        ASSERT_TRUE(tips.open(QIODevice::WriteOnly));
    }
    QStringList Told(const QStringList& arguments = {}) const {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", Path("/data"));
        program.setProcessEnvironment(environment);
        program.start(Path("/bin/program"), arguments);
        EXPECT_TRUE(program.waitForFinished(-1));
        return QString::fromLocal8Bit(program.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }

    const QTemporaryDir folder_;
};

TEST_F(InstalledProgramTest, KeepsTheRecordsInThePersonsFolderIfItsFilesAreShared) {
    DeliverTo("/share/halvane");
    EXPECT_EQ(Told(), QStringList({Path("/share/halvane"), Path("/data/halvane/records")}));
}

TEST_F(InstalledProgramTest, KeepsTheRecordsBesideItselfIfItsFilesStandThere) {
    DeliverTo("/bin");
    EXPECT_EQ(Told(), QStringList({Path("/bin"), Path("/bin")}));
    DeliverTo("/share/halvane");
    EXPECT_EQ(Told(), QStringList({Path("/bin"), Path("/bin")}));
}

TEST_F(InstalledProgramTest, StandsAloneIfItsFilesAreNowhere) {
    EXPECT_EQ(Told(), QStringList({Path("/bin"), Path("/bin")}));
}

TEST_F(InstalledProgramTest, TakesTheFolderThatIsSetForFilesAndRecords) {
    DeliverTo("/share/halvane");
    EXPECT_EQ(Told({"/opt/halvane"}), QStringList({"/opt/halvane", "/opt/halvane"}));
}
