#include "support/HalvaneTest.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// Runs the scripts' package installation in its own folder: nothing is installed, and the locks
/// are those of the folder.
class SetupTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        for (const char* folder :
             {"state/lists/partial", "cache/archives/partial", "etc", "source"})
            ASSERT_TRUE(QDir(Folder()).mkpath(QLatin1String(folder)));
        Write("apt.conf", "Dir::State \"" + Folder().toUtf8() + "/state\";\nDir::Cache \"" +
                              Folder().toUtf8() + "/cache\";\nDir::Etc \"" + Folder().toUtf8() +
                              "/etc\";\n");
        Write("etc/sources.list", "deb [trusted=yes] file:" + Folder().toUtf8() + "/source ./\n");
        Write("source/Packages", "");
        Write("sudo", "#!/bin/sh\nexec \"$@\"\n");
        QFile::setPermissions(Folder() + "/sudo", QFile::ReadOwner | QFile::ExeOwner);
    }
    void TearDown() override {
        Release();
        HalvaneTest::TearDown();
    }
    void Write(const char* name, const QByteArray& text) {
        QFile file(Folder() + u'/' + QLatin1String(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// Holds the lock as another package manager does.
    void Hold(const char* lock) {
        held_ =
            open(QFile::encodeName(Folder() + u'/' + QLatin1String(lock)), O_RDWR | O_CREAT, 0600);
        struct flock whole {};
        whole.l_type = F_WRLCK;
        ASSERT_EQ(fcntl(held_, F_SETLK, &whole), 0);
    }
    void Release() {
        if (held_ != -1)
            close(held_);
        held_ = -1;
    }
    void Start(const QString& call) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("APT_CONFIG", Folder() + "/apt.conf");
        environment.insert("PATH", Folder() + u':' + environment.value("PATH"));
        bash_.setProcessEnvironment(environment);
        bash_.setReadChannel(QProcess::StandardError);
        bash_.setWorkingDirectory(Places::Source(QString()));
        bash_.start("bash",
                    {"-c", "set -euo pipefail; source tools/setup.sh; lock_pause=0.1; " + call});
    }
    QByteArray Said() {
        while (!said_.contains("finish") && bash_.waitForReadyRead())
            said_ += bash_.readAllStandardError();
        return said_;
    }
    void ExpectEnd(int code) {
        ASSERT_TRUE(bash_.waitForFinished());
        EXPECT_EQ(bash_.exitCode(), code);
        said_ += bash_.readAllStandardError();
    }

    QProcess bash_;
    QByteArray said_;
    int held_ = -1;
};

} // namespace

TEST_F(SetupTest, WithoutAnotherPackageManagerNothingIsSaid) {
    Start("apt_get update");
    ExpectEnd(0);
    EXPECT_FALSE(said_.contains("Waiting")) << said_.toStdString();
}

TEST_F(SetupTest, WaitsForThePackageListsAndSaysOnceForWhom) {
    Hold("state/lists/lock");
    Start("apt_get update");
    EXPECT_TRUE(Said().startsWith("Waiting for another package manager to finish (test_tools, "))
        << said_.toStdString();
    Release();
    ExpectEnd(0);
    EXPECT_EQ(said_.count("Waiting"), 1) << said_.toStdString();
}

TEST_F(SetupTest, WaitsForThePackageArchive) {
    Hold("cache/archives/lock");
    Start("apt_get clean");
    EXPECT_TRUE(Said().startsWith("Waiting for another package manager to finish"))
        << said_.toStdString();
    Release();
    ExpectEnd(0);
}

TEST_F(SetupTest, AnyOtherFailureIsToldAndEndsTheScript) {
    Start("apt_get install no-such-package; echo 'went on'");
    ExpectEnd(1);
    EXPECT_TRUE(said_.contains("Unable to locate package no-such-package")) << said_.toStdString();
    EXPECT_FALSE(bash_.readAllStandardOutput().contains("went on"));
}
