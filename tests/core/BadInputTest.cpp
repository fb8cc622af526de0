#include "core/CoreTest.h"
#include "support/Unwinding.h"

#include "core/Flow.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmHOME.h"
#include "model/User.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "store/Schema.h"

#include <QFile>
#include <QLineEdit>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

/// Complete starts, and the first profile, with input that no sound program and no careful user
/// gives. The screens are the real ones.
class BadInputTest : public CoreTest {
protected:
    using Entries = QHash<QString, QString>;

    void SetUp() override {
        CoreTest::SetUp();
        Deliver();
        SetRegValue(QStringLiteral("EULA"), QStringLiteral("YES"));
        Clock::SetToday(QDate(2026, 11, 21));
        RegisterScreens(TheNavigation());
    }
    void Start() { ASSERT_EQ(RunMain(), 0) << stderrText.toStdString(); }
    void End() {
        Flow::QuitApp();
        CloseDatabases();
        TheNavigation().Reset();
        RunDeferredDeletes();
        ResetApp();
        RegisterScreens(TheNavigation());
    }
    void StartAgain() {
        End();
        Start();
    }

    /// Begins the first profile, fills it in for a woman of 30 except for the given entries, and
    /// passes it to `use`.
    void FirstProfile(const Entries& entries, const std::function<void(QWidget*)>& use) {
        WithModal(
            [&](QWidget* profile) {
                Entries all{{"txtUserName", "Anna"}, {"txtAge", "30"},     {"txtFeet", "5"},
                            {"txtInches", "5"},      {"txtWeight", "140"}, {"txtDWeight", "130"}};
                all.insert(entries);
                for (const auto& [field, text] : all.asKeyValueRange())
                    Find<QLineEdit>(profile, field)->setText(text);
                Click(Find(profile, QStringLiteral("opGender0")));
                Click(Find(profile, QStringLiteral("opAct1")));
                use(profile);
            },
            [this] {
                Click(Find(Window(QStringLiteral("frmWelcome")), QStringLiteral("cmdBegin")));
            });
    }
    void CreateProfile(const Entries& entries = {}) {
        ExpectAlert(QStringLiteral(
            "Your profile has been created. The RDI values created should be used only as "
            "guidelines. You can edit these values by using the 'Edit My Profile' feature (under "
            "the 'Edit' menu)."));
        FirstProfile(entries,
                     [](QWidget* profile) { Click(Find(profile, QStringLiteral("cmdSave"))); });
        Activate(TheNavigation().Frame());
    }
    void ShowDay() { Click(Find(TheNavigation().Frame(), QStringLiteral("cmdDay"))); }
    void WeighIn(const char* pounds) {
        ShowDay();
        auto* field = Find<QLineEdit>(TheNavigation().Frame(), QStringLiteral("txtWeight"));
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(pounds));
        field->clearFocus();
    }
    QString ShownWeight() {
        ShowDay();
        return Find<QLineEdit>(TheNavigation().Frame(), QStringLiteral("txtWeight"))->text();
    }
};

// The first profile

struct FailingEntry {
    const char* name;
    const char* field;
    QString text;
    int number;
};

class FailingFirstProfile : public BadInputTest,
                            public ::testing::WithParamInterface<FailingEntry> {};

INSTANTIATE_TEST_SUITE_P(
    Entries, FailingFirstProfile,
    ::testing::Values(
        FailingEntry{"Apostrophe", "txtUserName", "O'Brien", -1},
        FailingEntry{"Statement", "txtUserName", "x'; DROP TABLE profiles; --", -1},
        FailingEntry{"EmbeddedNul", "txtUserName", QStringLiteral("An") + QChar::Null + u"na", -1},
        FailingEntry{"LongNameWithApostrophe", "txtUserName", QString(10000, u'n') + u'\'', -1},
        FailingEntry{"AgeInAGap", "txtAge", "13.5", 3021},
        FailingEntry{"AgeBeyondTheTable", "txtAge", "1000", 3021},
        FailingEntry{"AgeWithoutAFiberTarget", "txtAge", "999", 438},
        FailingEntry{"NoFeet", "txtFeet", "", 13},
        FailingEntry{"FeetWithAComma", "txtFeet", "1,5", 13},
        FailingEntry{"FeetBeyondADouble", "txtFeet", "1e400", 6}),
    [](const auto& entry) { return std::string(entry.param.name); });

TEST_P(FailingFirstProfile, SaysWhyEndsTheProcessAndTheNextStartBeginsAfresh) {
    const auto& [name, field, text, number] = GetParam();
    const Unwinding leavesEvents;
    Start();
    ExpectAlert(QStringLiteral("You must create a user profile to use Halvane. Are you sure you "
                               "wish to quit without creating your profile?"));
    FirstProfile({{QLatin1String(field), text}}, [&](QWidget* profile) {
        const QString message = MessageOf([&] { Click(Find(profile, QStringLiteral("cmdSave"))); });
        EXPECT_TRUE(message.endsWith(QStringLiteral("Error %1").arg(number)))
            << message.right(200).toStdString();
        EXPECT_EQ(endings, QList<int>{1});
        Click(Find(profile, QStringLiteral("cmdCancel")));
    });
    EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM profiles")).toInt(), 0);
    EXPECT_EQ(Users(QStringLiteral("SELECT count(*) FROM RDI")).toInt(), 22);
    StartAgain();
    CreateProfile();
    EXPECT_EQ(User::Current().UserName, QStringLiteral("Anna"));
}

TEST_F(BadInputTest, NamesOfEveryKindAreThereAtTheNextStart) {
    const QStringList names = {"100% _ [Anna]", QString::fromUtf8("\U0001F35E Zo\u00eb"),
                               QString(10000, u'n'), "\"--", "#1/1/2002#"};
    for (const QString& name : names) {
        Start();
        CreateProfile({{"txtUserName", name}});
        StartAgain();
        EXPECT_EQ(User::Current().UserName, name);
        EXPECT_TRUE(TheNavigation().Frame()->isVisible());
        Users(QStringLiteral("DELETE FROM profiles"));
        End();
    }
}

TEST_F(BadInputTest, AHalfYearOldAndA999YearOldAreThereAtTheNextStart) {
    for (const char* age : {"0.5", "999"}) {
        Start();
        CreateProfile({{"txtAge", age}, {"txtWeight", "2000"}});
        StartAgain();
        EXPECT_EQ(User::Current().Age, QLatin1String(age).toDouble());
        Users(QStringLiteral("DELETE FROM profiles"));
        End();
    }
}

// The start

TEST_F(BadInputTest, AHundredThousandTipsWithCarriageReturnsShowTheirNextOne) {
    QByteArray text;
    for (int line = 1; line <= 100000; ++line)
        text += "tip " + QByteArray::number(line) + "\r\n";
    WriteFile(QStringLiteral("tips.txt"), text);
    SetRegValue(QStringLiteral("TIPNUM"), QStringLiteral("99999"));
    Start();
    EXPECT_EQ(App().TipOfTheDay, QStringLiteral("tip 100000"));
    StartAgain();
    EXPECT_EQ(App().TipOfTheDay, QStringLiteral("tip 1"));
    EXPECT_EQ(GetRegValue(QStringLiteral("TIPNUM")), QStringLiteral("1"));
}

class NonsenseSettings : public BadInputTest, public ::testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(Values, NonsenseSettings,
                         ::testing::Values("@Invalid()", "'; DROP TABLE profiles; --", "1e400",
                                           "-1", "\xf0\x9f\x8d\x9e%_[]", "True,False"));

TEST_P(NonsenseSettings, InEveryValueStillLeadToTheDayAndBack) {
    Start();
    CreateProfile();
    End();
    for (const char* name :
         {"FAST", "EULA", "DROPSHADOWS", "UILEFT", "UITOP", "AUTORDI", "LIMIT50", "TIPNUM",
          "REPORTSTATE", "REPORTMODE", "DAILYMODE", "SEARCH_CUSTOM", "SEARCH_RECIPES",
          "SEARCH_STOCK", "SEARCH_STRING", "OPMEAL", "FROMEMAIL", "TOEMAIL", "INSTALLATION"})
        SetRegValue(QLatin1String(name), QString::fromUtf8(GetParam()));
    modals.clear();
    Start();
    EXPECT_EQ(modals, (QStringList{QStringLiteral("frmEULA"), QStringLiteral("frmSplash")}));
    ASSERT_NE(TheNavigation().Front(), nullptr);
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmMain"));
    ShowDay();
    QString opened;
    WithModal(
        [&](QWidget* dialog) {
            opened = dialog->objectName();
            dialog->close();
        },
        [] { Click(Find(TheNavigation().Frame(), QStringLiteral("cmdAddFoods"))); });
    EXPECT_EQ(opened, QStringLiteral("frmFoodSearch"));
    StartAgain();
    EXPECT_EQ(User::Current().UserName, QStringLiteral("Anna"));
}

class ClockTest : public BadInputTest, public ::testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Years, ClockTest, ::testing::Values(1970, 2106));

TEST_P(ClockTest, AProfileAndAWeightOfThatYearAreThereAtTheNextStart) {
    const QDate today(GetParam(), 1, 1);
    Clock::SetToday(today);
    Start();
    CreateProfile();
    WeighIn("138.5");
    StartAgain();
    EXPECT_EQ(App().CurrentDate, today);
    EXPECT_EQ(ShownWeight(), QStringLiteral("138.5"));
    EXPECT_EQ(Users(QStringLiteral("SELECT UDate FROM USER_WEIGHTS")).toString(),
              today.toString(Qt::ISODate));
}

class DamagedFile : public BadInputTest, public ::testing::WithParamInterface<const char*> {
protected:
    /// The start is refused; with the sound file back, everything that was committed is there.
    void ExpectRefusalThenEverything(const std::function<void(const QString& path)>& damage) {
        const QString path = FileBeside(QLatin1String(GetParam()));
        ASSERT_TRUE(QFile::copy(path, path + ".sound"));
        damage(path);
        EXPECT_EQ(RunMain(), 1);
        EXPECT_TRUE(stderrText.contains(QLatin1String(GetParam()))) << stderrText.toStdString();
        EXPECT_FALSE(Flow::HasWindow());
        End();
        QFile::remove(path);
        ASSERT_TRUE(QFile::rename(path + ".sound", path));
        Start();
        EXPECT_EQ(User::Current().UserName, QStringLiteral("Anna"));
        EXPECT_EQ(ShownWeight(), QStringLiteral("138.5"));
        End();
    }
};

INSTANTIATE_TEST_SUITE_P(BothFiles, DamagedFile, ::testing::Values("users.mdb", "foods.mdb"),
                         [](const auto& file) { return std::string(file.param, 5); });

TEST_P(DamagedFile, KeepsNobodyFromWhatWasCommittedBefore) {
    Start();
    CreateProfile();
    WeighIn("138.5");
    End();
    const auto resize = [](const QString& path, double part) {
        QFile file(path);
        EXPECT_TRUE(file.resize(qint64(double(file.size()) * part)));
    };
    ExpectRefusalThenEverything([](const QString& path) { QFile::remove(path); });
    ExpectRefusalThenEverything([&](const QString& path) { resize(path, 0); });
    ExpectRefusalThenEverything([&](const QString& path) { resize(path, 0.5); });
    ExpectRefusalThenEverything([](const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("a letter");
    });
    ExpectRefusalThenEverything([](const QString& path) {
        SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE);
        file.exec("PRAGMA user_version = " + std::to_string(Schema::Version + 1));
    });
}

// The screens in the frame

class RealScreens : public BadInputTest, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        BadInputTest::SetUp();
        SetRegValue(QStringLiteral("FAST"), QLatin1String(GetParam() ? "True" : "False"));
        Start();
        CreateProfile();
        ShowDay();
        RunDeferredDeletes();
    }
    QString ShownDate() {
        return Find(TheNavigation().Front(), QStringLiteral("aadate"))
            ->property("Caption")
            .toString();
    }
};

INSTANTIATE_TEST_SUITE_P(FastOffAndOn, RealScreens, ::testing::Bool());

TEST_P(RealScreens, ReturningToTheDayShowsTheCurrentDate) {
    const QPointer<ScreenForm> before = TheNavigation().Front();
    App().CurrentDate = QDate(2002, 4, 3);
    Click(Find(TheNavigation().Frame(), QStringLiteral("cmdDay")));
    RunDeferredDeletes();
    EXPECT_EQ(before == TheNavigation().Front(), GetParam()) << "kept only where FAST says so";
    EXPECT_EQ(ShownDate(), QStringLiteral("Wednesday, April 03, 2002"));
}

TEST_P(RealScreens, TheViewOfTheTotalsComesBackWhenTheDayIsBroughtAgain) {
    for (const auto& [button, mode] : {std::pair{"cmdPIEChart", "PIE"}, {"cmdVals", "VALS"}}) {
        Click(Find(TheNavigation().Front(), QLatin1String(button)));
        ShowDay(); // made anew while it stands in front, unless screens are kept
        EXPECT_EQ(
            Find(TheNavigation().Front(), QStringLiteral("ucDaily"))->property("Mode").toString(),
            QLatin1String(mode));
        RunDeferredDeletes();
    }
    End();
    EXPECT_EQ(GetRegValue(QStringLiteral("DAILYMODE")), QStringLiteral("VALS"));
}

TEST_P(RealScreens, CancellingTheProfileShowsTheSameDayAgain) {
    const QPointer<ScreenForm> day = TheNavigation().Front();
    ChooseFromMenu(7);
    ASSERT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmProfile"));
    EXPECT_FALSE(day->isVisible());
    Click(Find(TheNavigation().Front(), QStringLiteral("cmdCancel")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return day && day->isVisible(); }));
    EXPECT_EQ(TheNavigation().Front(), day.data());
    EXPECT_EQ(App().WindowTitle, day->Title());
}
