#include "core/CoreTest.h"

#include "core/Flow.h"
#include "core/Navigation.h"
#include "core/SingleInstance.h"
#include "core/frmHOME.h"
#include "drawing/Twips.h"
#include "model/User.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/RuntimeError.h"
#include "runtime/Seams.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "store/Schema.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>

#include <SQLiteCpp/SQLiteCpp.h>

/// The names of all windows that are painted as long as it lives.
class PaintedWindows : public QObject {
public:
    PaintedWindows() { qApp->installEventFilter(this); }
    QSet<QString> names;

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(object);
        if (widget && widget->isWindow() && event->type() == QEvent::Paint)
            names << widget->objectName();
        return false;
    }
};

class FlowTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        AddLoggedScreen(QStringLiteral("frmMain"), QStringLiteral("Main"));
        Clock::SetToday(QDate(2026, 11, 21));
    }
    QString Stored(const char* name) { return GetRegValue(QLatin1String(name)); }
    void Accept() { SetRegValue(QStringLiteral("EULA"), QStringLiteral("YES")); }
    void AddProfiles(const QStringList& names) {
        UserDB().Open(FileBeside(QStringLiteral("users.mdb")), DatabaseKind::Users);
        for (const QString& name : names)
            AddUser(name);
        CloseDatabases();
        User::ResetCurrent();
    }
    /// A start for a user who has accepted the agreement and has a profile.
    void StartWithAnna() {
        Deliver();
        Accept();
        AddProfiles({QStringLiteral("Anna")});
        ASSERT_EQ(RunMain(), 0);
        ASSERT_NE(Window(QStringLiteral("frmHOME")), nullptr);
    }
    /// The start ends without a window: one line on standard error names the file, and the file
    /// stays unchanged.
    void ExpectSilentEnd(const QString& file) {
        const bool isFile = QFileInfo(FileBeside(file)).isFile();
        const QByteArray before = isFile ? ReadFile(file) : QByteArray();
        EXPECT_EQ(RunMain(), 1);
        EXPECT_FALSE(Flow::HasWindow());
        EXPECT_TRUE(endings.isEmpty());
        EXPECT_EQ(stderrText.count(u'\n'), 1) << stderrText.toStdString();
        EXPECT_TRUE(stderrText.contains(file)) << stderrText.toStdString();
        if (isFile) {
            EXPECT_EQ(ReadFile(file), before);
        }
    }
};

TEST_F(FlowTest, AFirstStartShowsAgreementSplashAndWelcomeInThisOrder) {
    Deliver();
    EXPECT_EQ(RunMain(), 0);
    EXPECT_EQ(modals, (QStringList{QStringLiteral("frmEULA"), QStringLiteral("frmSplash")}));
    EXPECT_NE(Window(QStringLiteral("frmWelcome")), nullptr);
    EXPECT_EQ(Window(QStringLiteral("frmHOME")), nullptr);
    EXPECT_EQ(User::Current().UID, -1);
    EXPECT_EQ(Stored("EULA"), QStringLiteral("YES"));
    EXPECT_EQ(Stored("TIPNUM"), QStringLiteral("1"));
    EXPECT_TRUE(App().AppStarted);
    EXPECT_TRUE(stderrText.isEmpty()) << stderrText.toStdString();
}

TEST_F(FlowTest, ALaterStartShowsTheSplashThenTheFrameWithTheHomeScreen) {
    StartWithAnna();
    EXPECT_EQ(modals, QStringList{QStringLiteral("frmSplash")});
    EXPECT_EQ(User::Current().UserName, QStringLiteral("Anna"));
    ASSERT_NE(TheNavigation().Front(), nullptr);
    EXPECT_EQ(TheNavigation().Front()->objectName(), QStringLiteral("frmMain"));
    EXPECT_EQ(UserDB().state(), Connection::Opened);
    EXPECT_EQ(FoodDB().state(), Connection::Opened);
    EXPECT_EQ(App().AppInfo.HELPPATH, QString(Folder() + "/help/"));
    EXPECT_FALSE(App().TipOfTheDay.isEmpty());
}

TEST_F(FlowTest, AStartThatUpdatesTheFilesSaysSoUntilTheyAreOpen) {
    Deliver();
    Accept();
    AddProfiles({QStringLiteral("Anna")});
    SQLite::Database(FileBeside("users.mdb").toStdString(), SQLite::OPEN_READWRITE)
        .exec("PRAGMA user_version = 1"); // the step to 2 keeps tables of either shape
    const PaintedWindows painted;
    ASSERT_EQ(RunMain(), 0);
    EXPECT_TRUE(painted.names.contains("UpdateNotice"));
    EXPECT_EQ(Window("UpdateNotice"), nullptr);
    EXPECT_NE(Window("frmHOME"), nullptr);
}

TEST_F(FlowTest, AnUpdateThatFailsLeavesNoNoticeOpen) {
    Deliver();
    for (const char* change : {"PRAGMA user_version = 1", "DROP TABLE Ingredients"})
        SQLite::Database(FileBeside("users.mdb").toStdString(), SQLite::OPEN_READWRITE)
            .exec(change);
    const PaintedWindows painted;
    ExpectSilentEnd("users.mdb");
    EXPECT_TRUE(painted.names.contains("UpdateNotice"));
}

TEST_F(FlowTest, AStartWithFilesOfThisVersionUpdatesNone) {
    const PaintedWindows painted;
    StartWithAnna();
    EXPECT_FALSE(painted.names.contains("UpdateNotice"));
}

TEST_F(FlowTest, OfSeveralProfilesTheFirstRowsUserIsLoaded) {
    Deliver();
    Accept();
    AddProfiles({QStringLiteral("Zoe"), QStringLiteral("Anna"), QStringLiteral("Bert")});
    RunMain();
    EXPECT_EQ(User::Current().UserName, QStringLiteral("Zoe"));
    EXPECT_EQ(User::Current().UID, 1);
}

TEST_F(FlowTest, TheSettingsAreReadBeforeTheFrameIsMade) {
    SetRegValue(QStringLiteral("FAST"), QStringLiteral("TRUE"));
    SetRegValue(QStringLiteral("LIMIT50"), QStringLiteral("false"));
    SetRegValue(QStringLiteral("UILEFT"), QString::number(Twips::FromPixels(33)));
    SetRegValue(QStringLiteral("UITOP"), QString::number(Twips::FromPixels(44)));
    StartWithAnna();
    EXPECT_TRUE(App().AppInfo.FAST);
    EXPECT_FALSE(App().AppInfo.LIMITRESULTS);
    EXPECT_EQ(TheNavigation().Frame()->pos(), QPoint(33, 44));
}

TEST_F(FlowTest, TheAgreementIsShownAsOneTextWithoutLineBreaks) {
    Deliver();
    WriteFile(QStringLiteral("agreement.txt"), "First \r\nsecond \nthird\r.");
    QString shown;
    answers[QStringLiteral("frmEULA")] = [&](QWidget* dialog) {
        auto* eu = Find<QPlainTextEdit>(dialog, QStringLiteral("eu"));
        shown = eu->toPlainText();
        EXPECT_TRUE(eu->isReadOnly());
        Click(Find(dialog, QStringLiteral("cmdAccept")));
    };
    RunMain();
    EXPECT_EQ(shown, QStringLiteral("First second third."));
}

TEST_F(FlowTest, DecliningTheAgreementWritesNothingAndEndsTheProcess) {
    Deliver();
    answers[QStringLiteral("frmEULA")] = [](QWidget* dialog) {
        Click(Find(dialog, QStringLiteral("cmdNO")));
    };
    RunMain();
    EXPECT_EQ(modals, QStringList{QStringLiteral("frmEULA")});
    EXPECT_EQ(endings, QList<int>{0});
    EXPECT_FALSE(Flow::HasWindow());
    EXPECT_FALSE(QFile::exists(Folder() + "/Brindlewick/HALVANE.ini"));
}

TEST_F(FlowTest, ClosingTheAgreementInAnotherWayDeclinesIt) {
    Deliver();
    answers[QStringLiteral("frmEULA")] = [](QWidget* dialog) {
        QTest::keyClick(dialog, Qt::Key_Escape);
    };
    RunMain();
    EXPECT_EQ(endings, QList<int>{0});
    EXPECT_EQ(Stored("EULA"), QString());
}

TEST_F(FlowTest, AnAgreementThatIsMissingEndsInSilence) {
    Deliver();
    QFile::remove(FileBeside(QStringLiteral("agreement.txt")));
    ExpectSilentEnd(QStringLiteral("agreement.txt"));
}

TEST_F(FlowTest, MissingTipsEndInSilenceWithoutAWindow) {
    Deliver();
    Accept();
    QFile::remove(FileBeside(QStringLiteral("tips.txt")));
    ExpectSilentEnd(QStringLiteral("tips.txt"));
    EXPECT_TRUE(stderrText.contains(QStringLiteral("(53)"))) << stderrText.toStdString();
}

TEST_F(FlowTest, EmptyTipsEndInSilenceWithoutAWindow) {
    Deliver();
    Accept();
    WriteFile(QStringLiteral("tips.txt"), "");
    ExpectSilentEnd(QStringLiteral("tips.txt"));
    EXPECT_TRUE(stderrText.contains(QStringLiteral("(9)"))) << stderrText.toStdString();
}

TEST_F(FlowTest, NonsenseInEverySettingStillStarts) {
    for (const char* name :
         {"FAST", "DROPSHADOWS", "UILEFT", "UITOP", "AUTORDI", "LIMIT50", "TIPNUM"})
        SetRegValue(QLatin1String(name),
                    QStringLiteral("@Invalid(\x01;'%,=[]\n") + QStringLiteral("x").repeated(400));
    StartWithAnna();
    EXPECT_EQ(TheNavigation().Frame()->pos(), QPoint(0, 0));
    EXPECT_EQ(Stored("TIPNUM"), QStringLiteral("1"));
}

TEST_F(FlowTest, ASettingsFileThatIsNoSettingsFileStillStarts) {
    Deliver();
    QDir().mkpath(Folder() + "/Brindlewick");
    WriteFile(QStringLiteral("Brindlewick/HALVANE.ini"), QByteArray("\x00\xFF\xFE[[[=\n\x01", 10));
    AddProfiles({QStringLiteral("Anna")});
    EXPECT_EQ(RunMain(), 0);
    EXPECT_EQ(modals.value(0), QStringLiteral("frmEULA"));
    EXPECT_NE(Window(QStringLiteral("frmHOME")), nullptr);
}

TEST_F(FlowTest, ASettingsStoreThatCannotBeReadOrWrittenAsksForTheAgreementAtEachStart) {
    QDir().mkpath(Folder() + "/Brindlewick/HALVANE.ini");
    Deliver();
    AddProfiles({QStringLiteral("Anna")});
    EXPECT_EQ(RunMain(), 0);
    EXPECT_NE(Window(QStringLiteral("frmHOME")), nullptr);
    EXPECT_EQ(Stored("EULA"), QString());
}

class FlowDatabases : public FlowTest, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        FlowTest::SetUp();
        Deliver();
        Accept();
    }
    QString Name() const { return QString::fromLatin1(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(BothFiles, FlowDatabases, ::testing::Values("users.mdb", "foods.mdb"),
                         [](const auto& file) { return std::string(file.param, 5); });

TEST_P(FlowDatabases, AMissingFileEndsInSilenceAndIsNotMade) {
    QFile::remove(FileBeside(Name()));
    ExpectSilentEnd(Name());
    EXPECT_FALSE(QFile::exists(FileBeside(Name())));
    EXPECT_TRUE(modals.isEmpty());
}

TEST_P(FlowDatabases, AnEmptyFileEndsInSilence) {
    WriteFile(Name(), "");
    ExpectSilentEnd(Name());
}

TEST_P(FlowDatabases, AFileThatIsNoDatabaseEndsInSilence) {
    WriteFile(Name(), QByteArray("This is a letter, not a database.\n").repeated(200));
    ExpectSilentEnd(Name());
}

TEST_P(FlowDatabases, AFileCutInHalfEndsInSilence) {
    const QByteArray whole = ReadFile(Name());
    WriteFile(Name(), whole.first(whole.size() / 2));
    ExpectSilentEnd(Name());
}

TEST_P(FlowDatabases, AFileOfANewerSchemaEndsInSilence) {
    {
        SQLite::Database file(FileBeside(Name()).toStdString(), SQLite::OPEN_READWRITE);
        file.exec("PRAGMA user_version = " + std::to_string(Schema::Version + 1));
    }
    ExpectSilentEnd(Name());
}

TEST_P(FlowDatabases, AFolderOfThatNameEndsInSilence) {
    QFile::remove(FileBeside(Name()));
    QDir().mkdir(FileBeside(Name()));
    ExpectSilentEnd(Name());
}

TEST_F(FlowTest, AFailureAboveFourHundredShowsTheMessageThenEndsTheProcess) {
    Deliver();
    Accept();
    AddProfiles({QStringLiteral("Anna")});
    TheSeams().ShowHome = [] { throw RuntimeError(3706, QStringLiteral("Provider not found")); };
    QString title, text, help;
    answers[QStringLiteral("")] = [&](QWidget* window) {
        auto* box = qobject_cast<QMessageBox*>(window);
        ASSERT_NE(box, nullptr);
        title = box->windowTitle();
        text = box->text();
        QTimer::singleShot(0, [&] {
            auto* over = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            help = over->text();
            over->accept();
        });
        box->button(QMessageBox::Help)->click();
        EXPECT_TRUE(box->isVisible()) << "help leaves the message standing";
        box->accept();
    };
    EXPECT_EQ(RunMain(), 1);
    EXPECT_EQ(title, QStringLiteral("Update to MDAC required"));
    EXPECT_EQ(text,
              QStringLiteral("Halvane could not initialize. The most likely cause of this error is "
                             "that your computer needs to be updated with the latest Microsoft "
                             "Data Access Components (free from Microsoft).\n\nPlease download and "
                             "install this package from: https://www.brindlewick.example/halvane/"
                             "download"));
    EXPECT_EQ(help, QStringLiteral("https://www.brindlewick.example/halvane/download\n\nProvider "
                                   "not found  3706"));
    EXPECT_EQ(endings, QList<int>{1});
}

TEST_F(FlowTest, AJournalThatDoesNotFitEndsWithAMessageThatNamesTheFilesAndChangesNothing) {
    Deliver();
    Accept();
    AddProfiles({QStringLiteral("Anna")});
    const QByteArray copy = ReadFile(QStringLiteral("users.mdb"));
    QByteArray log;
    {
        SQLite::Database file(FileBeside(QStringLiteral("users.mdb")).toStdString(),
                              SQLite::OPEN_READWRITE);
        file.exec("PRAGMA journal_mode = WAL");
        file.exec("UPDATE profiles SET UserName = 'Zoe'");
        log = ReadFile(QStringLiteral("users.mdb-wal"));
    }
    WriteFile(QStringLiteral("users.mdb"), copy);
    WriteFile(QStringLiteral("users.mdb-wal"), log);
    QString title, text;
    answers[QStringLiteral("")] = [&](QWidget* window) {
        auto* box = qobject_cast<QMessageBox*>(window);
        ASSERT_NE(box, nullptr);
        title = box->windowTitle();
        text = box->text();
        box->accept();
    };
    EXPECT_EQ(RunMain(), 1);
    EXPECT_EQ(title, QStringLiteral("Halvane cannot start"));
    EXPECT_TRUE(text.contains(QStringLiteral("move users.mdb-wal out of the folder")))
        << text.toStdString();
    EXPECT_TRUE(text.contains(Folder())) << text.toStdString();
    const QStringList lines = stderrText.split(u'\n').filter(QStringLiteral("users.mdb"));
    ASSERT_EQ(lines.size(), 1) << stderrText.toStdString();
    EXPECT_TRUE(lines.first().startsWith(QStringLiteral("halvane: could not start: users.mdb: ")));
    EXPECT_TRUE(lines.first().endsWith(QStringLiteral("(3343)")));
    EXPECT_EQ(endings, QList<int>{1});
    EXPECT_TRUE(ReadFile(QStringLiteral("users.mdb")) == copy);
    EXPECT_TRUE(ReadFile(QStringLiteral("users.mdb-wal")) == log);
}

TEST_F(FlowTest, TheMessageComesFromFourHundredAndOneUp) {
    Deliver();
    Accept();
    AddProfiles({QStringLiteral("Anna")});
    TheSeams().ShowHome = [] { throw RuntimeError(400, QStringLiteral("just below")); };
    EXPECT_EQ(RunMain(), 1);
    EXPECT_TRUE(endings.isEmpty());
    EXPECT_EQ(modals, QStringList{QStringLiteral("frmSplash")});
    CloseDatabases();
    TheSeams().ShowHome = [] { throw RuntimeError(401, QStringLiteral("just above")); };
    EXPECT_EQ(RunMain(), 1);
    EXPECT_EQ(endings, QList<int>{1});
}

TEST_F(FlowTest, AFailureAfterTheFrameIsShownLeavesTheProcessRunning) {
    Deliver();
    Accept();
    AddProfiles({QStringLiteral("Anna")});
    TheSeams().ShowHome = [] {
        TheNavigation().ShowHome();
        throw RuntimeError(13, QStringLiteral("Type mismatch"));
    };
    RunMain();
    EXPECT_TRUE(Flow::HasWindow());
    EXPECT_TRUE(endings.isEmpty());
}

TEST_F(FlowTest, AProfileRowWithNullsStarts) {
    Deliver();
    Accept();
    AddProfiles({QStringLiteral("Anna")});
    {
        SQLite::Database file(FileBeside(QStringLiteral("users.mdb")).toStdString(),
                              SQLite::OPEN_READWRITE);
        file.exec("UPDATE profiles SET age = NULL, Zinc = NULL, UserName = NULL");
    }
    EXPECT_EQ(RunMain(), 0);
    EXPECT_TRUE(Flow::HasWindow());
}

TEST_F(FlowTest, ASecondStartChangesNothingAndBringsTheFirstForward) {
    SingleInstance first(Folder());
    ASSERT_TRUE(first.Claim());
    bool asked = false;
    QObject::connect(&first, &SingleInstance::Activated, [&] { asked = true; });
    Deliver();
    EXPECT_EQ(RunMain(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked; }));
    EXPECT_FALSE(App().AppStarted);
    EXPECT_FALSE(Flow::HasWindow());
    EXPECT_TRUE(modals.isEmpty());
    EXPECT_FALSE(QFile::exists(Folder() + "/Brindlewick/HALVANE.ini"));
}

TEST_F(FlowTest, BeingAskedForwardBringsAMinimisedFrameBack) {
    StartWithAnna();
    TheNavigation().Frame()->showMinimized();
    Flow::BringForward();
    EXPECT_FALSE(TheNavigation().Frame()->isMinimized());
    EXPECT_TRUE(QTest::qWaitForWindowActive(TheNavigation().Frame()));
}

TEST_F(FlowTest, BeingAskedForwardBringsTheFrameBackBehindItsDialog) {
    StartWithAnna();
    WithModal(
        [](QWidget* dialog) {
            TheNavigation().Frame()->showMinimized();
            Flow::BringForward();
            EXPECT_FALSE(TheNavigation().Frame()->isMinimized());
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        },
        [] { ChooseFromMenu(6); });
}

TEST_F(FlowTest, QuittingStoresThePlaceInTwipsAndClosesEverything) {
    StartWithAnna();
    TheNavigation().Frame()->move(123, 77);
    Click(Find(TheNavigation().Frame(), QStringLiteral("cmdQuit")));
    EXPECT_EQ(Stored("UILEFT"), QString::number(Twips::FromPixels(123)));
    EXPECT_EQ(Stored("UITOP"), QString::number(Twips::FromPixels(77)));
    EXPECT_FALSE(Flow::HasWindow());
    EXPECT_EQ(UserDB().state(), Connection::Closed);
    EXPECT_EQ(FoodDB().state(), Connection::Closed);
}

TEST_F(FlowTest, ExitInTheMenuQuitsTheSame) {
    StartWithAnna();
    TheNavigation().Frame()->move(15, 30);
    ChooseFromMenu(4);
    EXPECT_EQ(Stored("UILEFT"), QString::number(Twips::FromPixels(15)));
    EXPECT_EQ(Stored("UITOP"), QString::number(Twips::FromPixels(30)));
    EXPECT_FALSE(Flow::HasWindow());
    EXPECT_EQ(UserDB().state(), Connection::Closed);
}

TEST_F(FlowTest, AfterTheAboutBoxTheNextStartsSplashClosesByItselfAgain) {
    StartWithAnna();
    answers[QStringLiteral("frmSplash")] = [](QWidget* splash) {
        EXPECT_TRUE(Find<QTimer>(splash, QStringLiteral("tmrClose"))->isActive());
        Click(splash);
    };
    WithModal([](QWidget* about) { Click(about); }, [] { ChooseFromMenu(12); });
    Flow::QuitApp();
    TheNavigation().Reset();
    AddLoggedScreen(QStringLiteral("frmMain"), QStringLiteral("Main"));
    EXPECT_EQ(RunMain(), 0);
}

TEST_F(FlowTest, ClosingTheFrameByTheWindowSystemQuitsTheSame) {
    StartWithAnna();
    TheNavigation().Frame()->move(15, 30);
    TheNavigation().Frame()->close();
    EXPECT_EQ(Stored("UILEFT"), QString::number(Twips::FromPixels(15)));
    EXPECT_FALSE(Flow::HasWindow());
    EXPECT_EQ(UserDB().state(), Connection::Closed);
}

TEST_F(FlowTest, QuittingFromTheKeyboardTakesOverWhatIsBeingTypedFirst) {
    StartWithAnna();
    auto* field = new QLineEdit(TheNavigation().Front());
    field->show();
    Activate(TheNavigation().Frame());
    field->setFocus();
    int state = -1;
    QObject::connect(field, &QLineEdit::editingFinished, [&] { state = UserDB().state(); });
    QTest::keyClicks(field, QStringLiteral("150"));
    QTest::keyClick(field, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(state, Connection::Opened) << "the field is left while the database is still open";
    EXPECT_EQ(UserDB().state(), Connection::Closed);
}

TEST_F(FlowTest, QuittingTwiceIsQuittingOnce) {
    StartWithAnna();
    Flow::QuitApp();
    Flow::QuitApp();
    EXPECT_FALSE(Flow::HasWindow());
}

TEST_F(FlowTest, TheNextStartComesUpWhereTheLastOneStood) {
    StartWithAnna();
    TheNavigation().Frame()->move(64, 48);
    Flow::QuitApp();
    TheNavigation().Reset();
    AddLoggedScreen(QStringLiteral("frmMain"), QStringLiteral("Main"));
    EXPECT_EQ(RunMain(), 0);
    EXPECT_EQ(TheNavigation().Frame()->pos(), QPoint(64, 48));
    EXPECT_EQ(Stored("TIPNUM"), QStringLiteral("2"));
}
