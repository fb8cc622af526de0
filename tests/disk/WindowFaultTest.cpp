#include "core/CoreTest.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "disk/DiskWatch.h"
#include "disk/WritingRoutines.h"
#include "foods/ScaledFood.h"
#include "foods/ui/frmFoodList.h"
#include "intake/ui/ucMyFood.h"
#include "runtime/AppState.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "store/Connection.h"
#include "toolkit/ucButton.h"

#include <QDir>
#include <QLineEdit>
#include <QRegularExpression>

namespace {
constexpr qint32 StockFood = 16096;
}

/// What a person sees of a disk that fails while something is saved.
class WindowFaultTest : public CoreTest {
protected:
    void SetUp() override {
        CoreTest::SetUp();
        ASSERT_TRUE(QDir().mkpath(Disk()));
        WritingRoutines::MakeGround(Ground());
        ground_ = DiskWatch(Disk()).Trace().before;
    }
    QString Disk() const { return Folder() + "/disk"; }
    RoutineGround Ground() const { return {RecordsFolder(Disk() + "/records"), Folder()}; }

    /// Starts the program over the records, and shows a screen.
    ScreenForm* Start(const char* screen) {
        TheNavigation().Reset();
        ground_.PutInto(Disk());
        WritingRoutines::OpenAsWindow(Ground());
        App().AppStarted = true;
        App().CurrentDate = QDate(2026, 11, 20);
        endings.clear();
        RegisterScreens(TheNavigation());
        ::ShowHome();
        auto* shown = qobject_cast<ScreenForm*>(::ShowScreen(QLatin1String(screen)));
        RunDeferredDeletes();
        return shown;
    }

    static qsizetype Lines(const ScreenForm* day) {
        return day->findChildren<QWidget*>(QRegularExpression(QStringLiteral("^ucAte\\d+$")))
            .size();
    }

    /// The number that the query gives at the next start.
    int Stored(Connection& connection, const char* query) {
        CloseDatabases();
        WritingRoutines::OpenAsWindow(Ground());
        return Rows(connection, QLatin1String(query)).first().first().toInt();
    }

    /// Each call fails in turn, until none is left. `expect` gets the message of the end.
    void FailEach(const char* screen, const std::function<void(ScreenForm*)>& save,
                  const std::function<void(ScreenForm*, const QString&)>& expect) {
        int ended = 0;
        for (int at = 1;; ++at) {
            ScreenForm* shown = Start(screen);
            QString message;
            {
                DiskWatch watch(Disk());
                watch.Plan({FaultKind::Full, at, true});
                message = EndingDuring([&] { InEvent([&] { save(shown); }); });
                if (watch.Calls() < at)
                    break;
            }
            ++ended;
            EXPECT_TRUE(message.startsWith("Halvane cannot go on and will close. Everything that "
                                           "was saved before stays."))
                << at;
            EXPECT_EQ(endings, QList<int>{1}) << at;
            expect(shown, message);
        }
        EXPECT_GT(ended, 0);
    }

private:
    DiskImage ground_;
};

TEST_F(WindowFaultTest, AFoodThatADiskHasNoRoomForIsNotListedAndEndsTheProgram) {
    qsizetype listed = 0;
    FailEach(
        Screens::Day.name,
        [&](ScreenForm* day) {
            listed = Lines(day);
            day->findChild<ucMyFood*>()->AddFood(
                ScaledFood::FromCatalogue(StockFood, QStringLiteral("A"), 2),
                QStringLiteral("Lunch"));
        },
        [&](ScreenForm* day, const QString& message) {
            EXPECT_TRUE(message.contains(Disk())) << message.toStdString();
            EXPECT_EQ(Lines(day), listed);
            EXPECT_EQ(Stored(UserDB(), "SELECT count(*) FROM USER_FOODS"), 3);
        });
}

TEST_F(WindowFaultTest, AnOwnFoodThatADiskHasNoRoomForIsNotSavedInPart) {
    FailEach(
        Screens::FoodList.name,
        [](ScreenForm* foods) {
            qobject_cast<frmFoodList*>(foods)->NewFood();
            foods->findChild<QLineEdit*>(QStringLiteral("txtFoodName"))->setText("Toast");
            foods->findChild<ucButton*>(QStringLiteral("cmdSave"))->Activate();
        },
        [&](ScreenForm*, const QString& message) {
            EXPECT_TRUE(message.contains(Disk())) << message.toStdString();
            EXPECT_EQ(Stored(FoodDB(), "SELECT count(*) FROM FOODS WHERE FoodName = 'Toast'"), 0);
        });
}
