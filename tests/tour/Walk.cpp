#include "tour/Walk.h"

#include "tour/CustomFoodWalk.h"
#include "tour/ExchangeWalk.h"
#include "tour/Guide.h"
#include "tour/KeyWalk.h"
#include "tour/PrintWalk.h"
#include "tour/RecipeWalk.h"
#include "tour/ReportWalk.h"

#include "core/Application.h"
#include "core/Flow.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "model/User.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "store/Connection.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QSettings>
#include <QTest>

/// One food of the day: its meal heading, the search term, the serving and the quantity.
struct Walk::Bite {
    const char* heading;
    const char* term;
    const char* serving; ///< "A" or "B"
    const char* quantity;
};

const Walk::Bite Walk::Meals[] = {
    {"lblBreakfast", "oats regular quick unenriched cooked without", "A", "1"},
    {"lblBreakfast", "milk 2% milkfat added vitamin", "A", ".5"},
    {"lblBreakfast", "blueberries raw", "A", ".5"},
    {"lblLunch", "bread whole-wheat commercially prepared", "B", "2"},
    {"lblLunch", "turkey breast meat only roasted", "A", "1"},
    {"lblLunch", "apples raw with skin", "A", "1"},
    {"lblDinner", "salmon atlantic farmed cooked", "B", "1.5"},
    {"lblDinner", "rice brown long-grain cooked", "A", "1"},
    {"lblDinner", "broccoli frozen chopped cooked without salt", "A", "1"},
    {"lblSnack", "almonds dry roasted", "B", "1"},
    {"lblSnack", "yogurt plain low fat", "A", "1"},
};

namespace {
const QString Delivered = QStringLiteral(HALVANE_BUILD_DIR "/delivered/");

/// 11/21/2026, unless the environment names another day.
QDate ThatDay() {
    const QDate named = Dates::Parse(qEnvironmentVariable("TOUR_DAY"));
    return named.isValid() ? named : QDate(2026, 11, 21);
}

} // namespace

Walk::Walk(Guide& guide, const QString& folder)
    : guide_(guide)
    , folder_(folder)
    , home_(guide)
    , menu_(guide) {}

void Walk::Go() {
    UseFolder();
    LayOut();
    FirstStart();
    home_.EmptyMonth();
    menu_.Look();
    home_.ChooseToday();
    WeighIn();
    LogMeals();
    LookAtDay();
    LookAtViews();
    RemoveOneFood();
    KeepFoods();
    KeyWalk(guide_).Go();
    PrintWalk(guide_).Day();
    ChangeDay();
    EditProfile();
    Preferences();
    CustomFoodWalk(guide_).Go();
    RecipeWalk(guide_).Go();
    ReportWalk(guide_).Go();
#ifdef HALVANE_EXCHANGE_PROGRAM
    ExchangeWalk(guide_, folder_).Go();
#endif
    Quit();
    guide_.Check(guide_.AllForeseenCame(), QStringLiteral("every foreseen window came"));
}

void Walk::UseFolder() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_);
    SetApplicationPath(folder_);
    Clock::SetToday(ThatDay());
}

void Walk::Start() {
    RegisterScreens(TheNavigation());
    TheNavigation().InstallSeams();
    Flow::Main(static_cast<Application*>(qApp)->Instance());
}

void Walk::LayOut() {
    for (const char* name : {"users.mdb", "foods.mdb", "tips.txt", "agreement.txt"})
        guide_.Check(QFile::copy(Delivered + name, folder_ + u'/' + name),
                     QStringLiteral("laid out: ") + name);
}

void Walk::FirstStart() {
    guide_.Foresee(QStringLiteral("frmEULA"), [this](QWidget* agreement) {
        guide_.Picture(agreement, QStringLiteral("agreement"));
        guide_.Press(agreement, QStringLiteral("cmdAccept"));
    });
    guide_.Foresee(QStringLiteral("frmSplash"), [this](QWidget* splash) {
        guide_.Picture(splash, QStringLiteral("splash"));
        QTest::mouseClick(splash, Qt::LeftButton);
    });
    Start();
    QWidget* welcome = guide_.Window(QStringLiteral("frmWelcome"));
    guide_.Picture(welcome, QStringLiteral("welcome"));
    guide_.Foresee(QStringLiteral("frmProfile"),
                   [this](QWidget* profile) { CreateProfile(profile); });
    guide_.Foresee(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("profile-created"));
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    guide_.Press(welcome, QStringLiteral("cmdBegin"));
    guide_.CheckValue(
        UserDB(),
        QStringLiteral("SELECT UserName || ' ' || Calories || ' ' || protein FROM profiles"),
        QString(user_ + QStringLiteral(" 3149 236.0")));
}

void Walk::CreateProfile(QWidget* profile) {
    guide_.Picture(profile, QStringLiteral("profile-empty"));
    guide_.ForeseeNext(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("alert-name-missing"));
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    guide_.Press(profile, QStringLiteral("cmdSave"));
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(*) FROM profiles"), 0);
    FillProfile(profile);
    guide_.Picture(profile, QStringLiteral("profile-filled"));
    guide_.Press(profile, QStringLiteral("cmdSave"));
}

void Walk::FillProfile(QWidget* profile) {
    const std::pair<const char*, QString> fields[] = {
        {"txtUserName", user_}, {"txtAge", "40"},     {"txtFeet", "5"},
        {"txtInches", "10"},    {"txtWeight", "200"}, {"txtDWeight", "170"}};
    for (const auto& [field, text] : fields)
        guide_.Type(profile, field, text);
    guide_.Press(profile, QStringLiteral("opGender1"));
    guide_.Press(profile, QStringLiteral("opAct2"));
}

QWidget* Walk::Day() {
    return guide_.Window(QStringLiteral("frmDay"));
}

void Walk::WeighIn() {
    QWidget* frame = guide_.Window(QStringLiteral("frmHOME"));
    guide_.Picture(frame, QStringLiteral("day-empty"));
    guide_.HoverOver(frame, QStringLiteral("cmdReport"));
    guide_.Picture(frame, QStringLiteral("frame-hover"));
    guide_.HoverOver(frame, QStringLiteral("picFrameTop"));
    guide_.Foresee(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("alert-weight"));
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    guide_.Type(Day(), QStringLiteral("txtWeight"), QStringLiteral("0"));
    QTest::keyClick(guide_.Find<QWidget>(Day(), QStringLiteral("txtWeight")), Qt::Key_Tab);
    guide_.Settle();
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(*) FROM USER_WEIGHTS"), 0);
    guide_.Type(Day(), QStringLiteral("txtWeight"), QStringLiteral("198.5"));
    QTest::keyClick(guide_.Find<QWidget>(Day(), QStringLiteral("txtWeight")), Qt::Key_Tab);
    guide_.Settle();
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT UDate || ' ' || Weight FROM USER_WEIGHTS"),
                      QString(ThatDay().toString(Qt::ISODate) + " 198.5"));
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT current_weight FROM profiles"), 198);
}

void Walk::LogMeals() {
    int logged = 0;
    for (const Bite& bite : Meals) {
        guide_.Foresee(QStringLiteral("frmFoodSearch"), [this, &bite, logged](QWidget* search) {
            if (logged == 0) {
                guide_.Picture(search, QStringLiteral("search-empty"));
                NothingFound(search);
                EmptyTerm(search);
                ManyFound(search);
            }
            LogFirst(search, bite);
            if (logged == 0) {
                RefusedQuantity(search);
                ExamineFirst(search);
            }
            guide_.Press(search, QStringLiteral("cmdDone"));
        });
        guide_.Press(Day(), bite.heading);
        guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(*) FROM USER_FOODS"), ++logged);
    }
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(DISTINCT Meal) FROM USER_FOODS"), 4);
}

void Walk::NothingFound(QWidget* search) {
    guide_.Type(search, QStringLiteral("txtSearchString"), QStringLiteral("no such food"));
    guide_.Press(search, QStringLiteral("cmdGo"));
    guide_.Picture(search, QStringLiteral("search-nothing-found"));
}

void Walk::ManyFound(QWidget* search) {
    guide_.Type(search, QStringLiteral("txtSearchString"), QStringLiteral("oats cooked"));
    guide_.Press(search, QStringLiteral("cmdGo"));
    guide_.Picture(search, QStringLiteral("search-results"));
}

void Walk::EmptyTerm(QWidget* search) {
    guide_.ForeseeNext(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("alert-search-term"));
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    guide_.Type(search, QStringLiteral("txtSearchString"), QString());
    guide_.Press(search, QStringLiteral("cmdGo"));
}

void Walk::LogFirst(QWidget* search, const Bite& bite) {
    guide_.Type(search, QStringLiteral("txtSearchString"), bite.term);
    guide_.Press(search, QStringLiteral("cmdGo"));
    QWidget* row = guide_.Find(search, QStringLiteral("ucFood1"));
    if (!row)
        return;
    const bool first = bite.serving[0] == 'A';
    guide_.Type(row, first ? QStringLiteral("txtQTY_A") : QStringLiteral("txtQTY_B"),
                bite.quantity);
    guide_.Press(row, first ? QStringLiteral("cmdEAT_a") : QStringLiteral("cmdEAT_B"));
    guide_.CheckValue(UserDB(),
                      QStringLiteral("SELECT FoodName FROM USER_FOODS ORDER BY RecID DESC LIMIT 1"),
                      row->property("FoodName"));
}

void Walk::RefusedQuantity(QWidget* search) {
    guide_.ForeseeNext(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("alert-quantity"));
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    QWidget* row = guide_.Find(search, QStringLiteral("ucFood1"));
    guide_.Type(row, QStringLiteral("txtQTY_A"), QStringLiteral("99.01"));
    guide_.Press(row, QStringLiteral("cmdEAT_a"));
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(*) FROM USER_FOODS"), 1);
    guide_.Type(row, QStringLiteral("txtQTY_A"), QStringLiteral("1"));
}

void Walk::ExamineFirst(QWidget* search) {
    guide_.ForeseeNext(QStringLiteral("frmNutInfo"), [this](QWidget* facts) {
        guide_.Picture(facts, QStringLiteral("facts"));
        PrintWalk(guide_).Facts(facts);
        guide_.Press(facts, QStringLiteral("cmdDone"));
    });
    guide_.Press(guide_.Find(search, QStringLiteral("ucFood1")), QStringLiteral("imgInfo_W_A"));
}

void Walk::LookAtDay() {
    QWidget* frame = guide_.Window(QStringLiteral("frmHOME"));
    guide_.HoverOver(frame, QStringLiteral("aadate"));
    guide_.Picture(frame, QStringLiteral("day"));
    guide_.HoverOver(frame, QStringLiteral("lblLunch"));
    guide_.Picture(frame, QStringLiteral("day-heading-hover"));
    guide_.HoverOver(frame, QStringLiteral("lbl2"));
    guide_.Picture(frame, QStringLiteral("day-bar-hover"));
    guide_.HoverOver(frame, QStringLiteral("cmdClear"));
    guide_.Picture(frame, QStringLiteral("day-button-hover"));
}

void Walk::LookAtViews() {
    QWidget* frame = guide_.Window(QStringLiteral("frmHOME"));
    guide_.Press(frame, QStringLiteral("cmdVals"));
    guide_.Picture(frame, QStringLiteral("day-values"));
    guide_.Press(frame, QStringLiteral("cmdPIEChart"));
    guide_.Picture(frame, QStringLiteral("day-pie"));
    guide_.Press(frame, QStringLiteral("cmdBar"));
}

void Walk::RemoveOneFood() {
    QWidget* row = guide_.Find(Day(), QStringLiteral("ucAte1"));
    guide_.Press(row, QStringLiteral("imgTrash"));
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(*) FROM USER_FOODS"),
                      int(std::size(Meals)) - 1);
}

void Walk::KeepFoods() {
    guide_.Foresee(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("alert-clear"));
        guide_.Press(alert, QStringLiteral("cmdCancel"));
    });
    guide_.Press(Day(), QStringLiteral("cmdClear"));
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(*) FROM USER_FOODS"),
                      int(std::size(Meals)) - 1);
}

void Walk::ChangeDay() {
    QWidget* frame = guide_.Window(QStringLiteral("frmHOME"));
    QWidget* day = Day();
    guide_.Press(day, QStringLiteral("cmdCal"));
    guide_.Picture(frame, QStringLiteral("day-calendar"));
    auto* calendar = guide_.Find<QCalendarWidget>(day, QStringLiteral("smCal"));
    Q_EMIT calendar->clicked(ThatDay().addDays(-1));
    guide_.Settle();
    guide_.Picture(frame, QStringLiteral("day-before"));
    guide_.Check(App().CurrentDate == ThatDay().addDays(-1),
                 QStringLiteral("the day before is chosen"));
    Q_EMIT calendar->clicked(ThatDay());
    guide_.Settle();
}

void Walk::EditProfile() {
    QWidget* frame = guide_.Window(QStringLiteral("frmHOME"));
    menu_.Choose(7);
    QWidget* profile = guide_.Window(QStringLiteral("frmProfile"));
    guide_.Picture(frame, QStringLiteral("profile-edit"));
    guide_.Press(profile, QStringLiteral("cmdAdvanced"));
    guide_.Picture(frame, QStringLiteral("profile-advanced"));
    guide_.Type(profile, QStringLiteral("txtFiber"), QStringLiteral("-30"));
    guide_.Press(profile, QStringLiteral("cmdSave"));
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT CAST(fiber AS INTEGER) FROM profiles"), 30);
    guide_.Picture(frame, QStringLiteral("day-after-profile"));
}

void Walk::Preferences() {
    guide_.Foresee(QStringLiteral("frmPrefs"), [this](QWidget* preferences) {
        guide_.Picture(preferences, QStringLiteral("preferences"));
        guide_.Press(preferences, QStringLiteral("cmdSave"));
    });
    menu_.Choose(6);
}

void Walk::Quit() {
    Flow::QuitApp();
    guide_.Settle();
    guide_.Check(UserDB().state() == Connection::Closed,
                 QStringLiteral("the databases are closed"));
}

void Walk::GoAgain() {
    UseFolder();
    guide_.Foresee(QStringLiteral("frmSplash"),
                   [](QWidget* splash) { QTest::keyClick(splash, Qt::Key_Space); });
    Start();
    guide_.Settle();
    home_.ChooseToday();
    guide_.Picture(guide_.Window(QStringLiteral("frmHOME")), QStringLiteral("day-second-start"));
    guide_.Check(User::Current().UserName == QStringLiteral("Tom"),
                 QStringLiteral("the profile is there"));
    guide_.CheckValue(UserDB(), QStringLiteral("SELECT count(*) FROM USER_FOODS"),
                      int(std::size(Meals)) - 1);
    guide_.CheckValue(FoodDB(), QStringLiteral("SELECT count(*) FROM FOODS WHERE ID > 23508"), 1);
    RecipeWalk::FindAgain(guide_);
    guide_.Check(guide_.Find<QLineEdit>(Day(), QStringLiteral("txtWeight"))->text() ==
                     QStringLiteral("198.5"),
                 QStringLiteral("the weight is there"));
    home_.FullMonth();
    Quit();
}

/// A file stands where the folder of the snapshots must be.
void Walk::GoWithoutSnapshots() {
    UseFolder();
    const QString place = qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/halvane");
    const QString kept = place + QStringLiteral("-kept");
    guide_.Check(QDir().rename(place, kept) && QFile(place).open(QIODevice::WriteOnly),
                 QStringLiteral("no snapshot can be made"));
    guide_.Foresee(QStringLiteral("frmSplash"),
                   [](QWidget* splash) { QTest::keyClick(splash, Qt::Key_Space); });
    guide_.Foresee(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("snapshot-failed"));
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    Start();
    guide_.Check(QTest::qWaitFor([this] { return guide_.AllForeseenCame(); }, 60'000),
                 QStringLiteral("the failed snapshot is told"));
    Quit();
    guide_.Check(QFile::remove(place) && QDir().rename(kept, place),
                 QStringLiteral("the snapshots are back"));
}

void Walk::GoDamaged() {
    UseFolder();
    QFile users(folder_ + QStringLiteral("/users.mdb"));
    guide_.Check(users.open(QIODevice::ReadWrite) && users.write(QByteArray(4096, 'x')) == 4096,
                 QStringLiteral("the file is damaged"));
    users.close();
    guide_.Foresee(QStringLiteral("frmStartFailure"), [this](QWidget* message) {
        guide_.Picture(message, QStringLiteral("start-damaged"));
        message->close();
    });
    Start();
    guide_.Check(guide_.AllForeseenCame(), QStringLiteral("the start names the snapshot"));
}

void Walk::GoAsFriend() {
#ifdef HALVANE_EXCHANGE_PROGRAM
    ExchangeWalk exchange(guide_, folder_);
    folder_ += QStringLiteral("/friend");
    user_ = QStringLiteral("Anna");
    guide_.Check(QDir().mkpath(folder_), QStringLiteral("the friend has a folder of her own"));
    UseFolder();
    LayOut();
    FirstStart();
    home_.ChooseToday();
    exchange.Receive();
    Quit();
    guide_.Check(guide_.AllForeseenCame(), QStringLiteral("every foreseen window came"));
#endif
}
