#include "runtime/StartSettings.h"

#include "runtime/AppPath.h"
#include "runtime/Settings.h"
#include "support/HalvaneTest.h"

#include <QDir>

#include <limits>

class StartSettingsTest : public HalvaneTest {
protected:
    AppInfo Read() {
        AppInfo info;
        StartSettings::ReadFirst(info);
        StartSettings::ReadRest(info);
        return info;
    }
    AppInfo With(const char* name, const QString& value) {
        SetRegValue(QLatin1String(name), value);
        return Read();
    }
};

TEST_F(StartSettingsTest, AnEmptyStoreGivesTheDefaults) {
    const AppInfo info = Read();
    EXPECT_FALSE(info.FAST);
    EXPECT_TRUE(info.AUTOUPDATERDI);
    EXPECT_TRUE(info.LIMITRESULTS);
    EXPECT_TRUE(info.SHOWDROPSHADOWS);
    EXPECT_FALSE(info.SHOWCUECARDS);
    EXPECT_EQ(info.UILEFT, 0);
    EXPECT_EQ(info.UITOP, 0);
    EXPECT_FALSE(StartSettings::Agreed());
}

TEST_F(StartSettingsTest, TheHelpPathEndsInASeparatorWhetherOrNotTheProgramsPathDoes) {
    EXPECT_EQ(Read().HELPPATH, QString(Folder() + "/help/"));
}

TEST_F(StartSettingsTest, TextIsSmoothedOnThisPlatform) {
    EXPECT_EQ(Read().OSVERSION, 2);
}

TEST_F(StartSettingsTest, FastIsTrueForTrueInAnyCaseOnly) {
    for (const char* text : {"True", "true", "TRUE"})
        EXPECT_TRUE(With("FAST", QLatin1String(text)).FAST) << text;
    for (const char* text : {"", "False", "1", "yes", " True"})
        EXPECT_FALSE(With("FAST", QLatin1String(text)).FAST) << text;
}

TEST_F(StartSettingsTest, TheOthersAreTrueUnlessTheyAreFalseInAnyCase) {
    for (const char* text : {"False", "false", "FALSE"}) {
        EXPECT_FALSE(With("AUTORDI", QLatin1String(text)).AUTOUPDATERDI) << text;
        EXPECT_FALSE(With("LIMIT50", QLatin1String(text)).LIMITRESULTS) << text;
        EXPECT_FALSE(With("DROPSHADOWS", QLatin1String(text)).SHOWDROPSHADOWS) << text;
    }
    for (const char* text : {"", "True", "0", "no", "False "}) {
        EXPECT_TRUE(With("AUTORDI", QLatin1String(text)).AUTOUPDATERDI) << text;
        EXPECT_TRUE(With("LIMIT50", QLatin1String(text)).LIMITRESULTS) << text;
        EXPECT_TRUE(With("DROPSHADOWS", QLatin1String(text)).SHOWDROPSHADOWS) << text;
    }
}

TEST_F(StartSettingsTest, TheAgreementIsAcceptedByYesInAnyCaseOnly) {
    for (const char* text : {"YES", "yes", "Yes"}) {
        SetRegValue(QStringLiteral("EULA"), QLatin1String(text));
        EXPECT_TRUE(StartSettings::Agreed()) << text;
    }
    for (const char* text : {"", "NO", "Y", "YES!", "True"}) {
        SetRegValue(QStringLiteral("EULA"), QLatin1String(text));
        EXPECT_FALSE(StartSettings::Agreed()) << text;
    }
}

TEST_F(StartSettingsTest, APositionIsReadAsANumberOfTwips) {
    EXPECT_EQ(With("UILEFT", QStringLiteral("1500")).UILEFT, 1500);
    EXPECT_EQ(With("UITOP", QStringLiteral("-75")).UITOP, -75);
    EXPECT_EQ(With("UITOP", QStringLiteral("2147483647")).UITOP,
              std::numeric_limits<qint32>::max());
}

TEST_F(StartSettingsTest, APositionThatIsNoNumberThatFitsCountsAsZero) {
    for (const char* text : {"", "abc", "12px", "1,5", "1e400", "nan", "99999999999", "-1e300"}) {
        EXPECT_EQ(With("UILEFT", QLatin1String(text)).UILEFT, 0) << text;
        EXPECT_EQ(With("UITOP", QLatin1String(text)).UITOP, 0) << text;
    }
}

TEST_F(StartSettingsTest, AStoreThatCannotBeReadGivesTheDefaults) {
    ASSERT_TRUE(QDir().mkpath(Folder() + "/Brindlewick/HALVANE.ini"));
    const AppInfo info = Read();
    EXPECT_FALSE(info.FAST);
    EXPECT_TRUE(info.AUTOUPDATERDI);
    EXPECT_TRUE(info.LIMITRESULTS);
    EXPECT_EQ(info.UILEFT, 0);
}
