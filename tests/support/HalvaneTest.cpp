#include "support/HalvaneTest.h"

#include "model/User.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Seams.h"
#include "runtime/Server.h"
#include "store/Connection.h"
#include "store/Schema.h"
#include "support/Places.h"

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include <SQLiteCpp/SQLiteCpp.h>

HalvaneTest::HalvaneTest() = default;
HalvaneTest::~HalvaneTest() = default;

void HalvaneTest::SetUp() {
    ASSERT_TRUE(folder_.isValid());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Folder());
    qputenv("XDG_DATA_HOME", QFile::encodeName(Folder() + "/data")); // snapshots
    SetApplicationPath(Folder());
    ResetApp();
    User::ResetCurrent();
    Seams& seams = TheSeams();
    seams.ShowAlert = [this](const QString& message, QObject*, bool) {
        if (alerts_.isEmpty()) {
            ADD_FAILURE() << "unasked alert: " << message.toStdString();
            return false;
        }
        const Answer next = alerts_.dequeue();
        EXPECT_EQ(message, next.message) << message.toStdString();
        return next.answer;
    };
    seams.ShowScreen = [this](const QString& name) -> QObject* {
        shownScreens << name;
        return nullptr;
    };
    seams.LoadScreen = [](const QString&) -> QObject* { return nullptr; };
    seams.ShowHome = [] {};
    seams.EndProcess = [this](int code) { endings << code; };
}

void HalvaneTest::TearDown() {
    for (const Answer& missed : std::as_const(alerts_))
        ADD_FAILURE() << "expected alert never came: " << missed.message.toStdString();
    CloseDatabases();
    Clock::UseSystemClock();
    User::ResetCurrent();
    ResetApp();
    Server::SetAddress(QString());
    Server::SetSupport(QString());
    TheSeams() = Seams();
}

void HalvaneTest::ExpectAlert(const QString& message, bool answer) {
    alerts_.enqueue({message, answer});
}

void HalvaneTest::OpenDatabases() {
    for (const char* name : {"users.mdb", "foods.mdb"})
        ASSERT_TRUE(QFile::copy(Places::Build(QStringLiteral("/delivered/")) + name,
                                Folder() + u'/' + name));
    UserDB().Open(FileBeside(QStringLiteral("users.mdb")), DatabaseKind::Users);
    FoodDB().Open(FileBeside(QStringLiteral("foods.mdb")), DatabaseKind::Foods);
    App().AppStarted = true;
}

void HalvaneTest::OpenEmptyDatabases() {
    Schema::Create(FileBeside(QStringLiteral("users.mdb")), DatabaseKind::Users);
    Schema::Create(FileBeside(QStringLiteral("foods.mdb")), DatabaseKind::Foods);
    UserDB().Open(FileBeside(QStringLiteral("users.mdb")), DatabaseKind::Users);
    FoodDB().Open(FileBeside(QStringLiteral("foods.mdb")), DatabaseKind::Foods);
    App().AppStarted = true;
}

void HalvaneTest::CloseDatabases() {
    UserDB().Close();
    FoodDB().Close();
}

QList<QVariantList> HalvaneTest::Rows(Connection& connection, const QString& sql) {
    SQLite::Statement statement(connection.Raw(), sql.toStdString());
    QList<QVariantList> rows;
    while (statement.executeStep()) {
        QVariantList row;
        for (int i = 0; i < statement.getColumnCount(); ++i) {
            const SQLite::Column column = statement.getColumn(i);
            if (column.isNull())
                row << QVariant();
            else if (column.isInteger())
                row << QVariant(qlonglong(column.getInt64()));
            else if (column.isFloat())
                row << QVariant(column.getDouble());
            else
                row << QVariant(QString::fromStdString(column.getString()));
        }
        rows << row;
    }
    return rows;
}

QVariant HalvaneTest::Users(const QString& sql) {
    const auto rows = Rows(UserDB(), sql);
    return rows.isEmpty() ? QVariant() : rows.first().value(0);
}

QVariant HalvaneTest::Foods(const QString& sql) {
    const auto rows = Rows(FoodDB(), sql);
    return rows.isEmpty() ? QVariant() : rows.first().value(0);
}

qint32 HalvaneTest::AddUser(const QString& name) {
    SQLite::Statement insert(UserDB().Raw(), R"(INSERT INTO profiles
        (UserName, gender, age, height, current_weight, desired_weight, activity_level, flagsodium, flagcholesterol,
         sodiumMAX, cholesterolMAX, Calories, protein, carbs, TotalFat, SatFat, PolyFat, MonoFat, fiber, water,
         Cholesterol, sodium, Calcium, Folate, Magnesium, Phosphorus, Potassium, ASH, Copper, Iron, Manganese, Niacin,
         Panto, Riboflavin, Selenium, Thiamin, VitaminA, VitaminB12, VitaminB6, VitaminC, VitaminE, Zinc)
        VALUES (?, 1, 40, 70, 200, 170, 2, 0, 0, 0, 0, 2000, 100, 250, 60, 20, 20, 20, 25, 1792,
         300, 2400, 1000, 400, 400, 700, 3500, 0, 0.9, 8, 2.3, 16, 5, 1.3, 0.055, 1.2, 3000, 2.4, 1.3, 90, 15, 11))");
    insert.bind(1, name.toStdString());
    insert.exec();
    User& user = User::Current();
    user.UID = qint32(UserDB().Raw().getLastInsertRowid());
    user.GetUserProfile(user.UID);
    return user.UID;
}

void WithModal(const std::function<void(QWidget*)>& within, const std::function<void()>& action) {
    bool met = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || met || !modal->isVisible())
            return;
        met = true;
        watch.stop();
        within(modal);
        if (modal->isVisible())
            modal->close();
    });
    watch.start(0);
    action();
    EXPECT_TRUE(met) << "no modal window was shown";
}

static QPoint PlaceIn(QWidget* control, QPoint at) {
    return at.x() < 0 ? control->rect().center() : at;
}

void Click(QWidget* control, QPoint at) {
    QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, PlaceIn(control, at));
}

void Hover(QWidget* control, QPoint at) {
    const QPointF place = PlaceIn(control, at);
    QMouseEvent move(QEvent::MouseMove, place, control->mapToGlobal(place), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(control, &move);
}

QImage Grab(QWidget* control) {
    return control->grab().toImage().convertToFormat(QImage::Format_RGB32);
}
