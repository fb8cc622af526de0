#include "core/CoreTest.h"

#include "core/Community.h"
#include "core/OpenURL.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "runtime/Server.h"
#include "runtime/Settings.h"

#include <QDir>
#include <QRegularExpression>

class OpenURLTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        SetBrowser([this](const QUrl& address) {
            opened << address;
            return answer;
        });
    }
    void TearDown() override {
        SetBrowser({});
        CoreTest::TearDown();
    }

    QList<QUrl> opened;
    bool answer = true;
};

TEST_F(OpenURLTest, TheBrowserGetsTheAddressAsItStands) {
    OpenURL(QStringLiteral("http://127.0.0.1:8613/index.asp?ref=Halvane"));
    EXPECT_EQ(opened, QList<QUrl>{QUrl("http://127.0.0.1:8613/index.asp?ref=Halvane")});
}

TEST_F(OpenURLTest, ABrowserThatCannotBeStartedIsNotMentionedAndLeavesNoFile) {
    answer = false;
    const QStringList before = QDir(Folder()).entryList();
    OpenURL(QStringLiteral("https://exchange.example/"));
    EXPECT_EQ(opened.size(), 1);
    EXPECT_EQ(QDir(Folder()).entryList(), before);
}

TEST_F(OpenURLTest, AnEmptyAddressOpensNothing) {
    OpenURL(QString());
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(OpenURLTest, AnAddressOfAThousandCharactersIsNotCut) {
    const QString address = "https://exchange.example/?q=" + QString(1000, u'a');
    OpenURL(address);
    EXPECT_EQ(opened.value(0).toString(), address);
}

TEST_F(OpenURLTest, HelpOpensItsStartPageWhateverTheTopic) {
    const QString folder = Folder() + "/100% #1 help/";
    App().AppInfo.HELPPATH = folder;
    OpenHelp(QStringLiteral("contents"));
    OpenHelp(QString());
    const QUrl page = QUrl::fromLocalFile(folder + "index.html");
    EXPECT_EQ(opened, (QList<QUrl>{page, page}));
    EXPECT_EQ(opened.value(0).toLocalFile(), QString(folder + "index.html"));
}

TEST_F(OpenURLTest, TheInstallationIsNamedAtFirstUseAndKeepsItsName) {
    EXPECT_EQ(GetRegValue(QStringLiteral("INSTALLATION")), QString());
    const QString id = Community::InstallationID();
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$"))
                    .match(id)
                    .hasMatch())
        << id.toStdString();
    EXPECT_EQ(GetRegValue(QStringLiteral("INSTALLATION")), id);
    EXPECT_EQ(Community::InstallationID(), id);
}

TEST_F(OpenURLTest, ANameThatIsNoneIsReplaced) {
    for (const char* stored : {"me & you", "00000000-0000-0000-0000-000000000000", "1'; --"}) {
        SetRegValue(QStringLiteral("INSTALLATION"), QLatin1String(stored));
        const QString id = Community::InstallationID();
        EXPECT_EQ(id.size(), 36);
        EXPECT_NE(id, QLatin1String(stored));
        EXPECT_EQ(GetRegValue(QStringLiteral("INSTALLATION")), id);
    }
}

TEST_F(OpenURLTest, TheCommunityLearnsTheInstallationAndNothingElse) {
    Server::SetAddress(QStringLiteral("https://exchange.example/"));
    OpenDatabases();
    AddUser(QStringLiteral("Anna"));
    Community::Open();
    EXPECT_EQ(opened, QList<QUrl>{QUrl("https://exchange.example/halvane/community.asp?uid=" +
                                       Community::InstallationID())});
}
