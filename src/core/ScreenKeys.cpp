#include "core/ScreenKeys.h"

#include "core/Navigation.h"
#include "core/frmHOME.h"
#include "intake/ui/frmDay.h"
#include "model/User.h"
#include "model/ui/frmProfile.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "toolkit/LeaveField.h"

#include <QShortcut>

namespace {

bool IsInFront(const ScreenRow& row) {
    const ScreenForm* front = TheNavigation().Front();
    return front && front->objectName() == QLatin1String(row.name);
}

void GoTo(const ScreenRow& row) {
    if (IsInFront(row))
        return;
    if (&row == &Screens::Profile)
        frmProfile::EditUser(User::Current().UID);
    else
        ShowScreen(QLatin1String(row.name));
}

/// Null if the screen cannot be shown.
frmDay* DayScreen() {
    GoTo(Screens::Day);
    return qobject_cast<frmDay*>(TheNavigation().Front());
}

/// What is being typed belongs to the day before the change.
void SearchToday() {
    const QDate today = Clock::Today();
    if (App().CurrentDate != today) {
        LeaveField(TheNavigation().Frame());
        App().CurrentDate = today;
        ShowScreen(QLatin1String(Screens::Day.name));
    }
    if (frmDay* day = DayScreen())
        day->EatFoods();
}

void ChooseDate() {
    if (frmDay* day = DayScreen())
        day->OpenCalendar();
}

} // namespace

void ScreenKeys::AddTo(frmHOME& frame) {
    const auto add = [&frame](Qt::Key key, const std::function<void()>& act) {
        QObject::connect(new QShortcut(QKeySequence(Qt::CTRL | key), &frame), &QShortcut::activated,
                         &frame, [&frame, act] {
                             frame.ResetMenu();
                             if (User::Current().UID != -1)
                                 act();
                         });
    };
    int key = Qt::Key_1;
    for (const ScreenRow* row : Screens::All)
        add(Qt::Key(key++), [row] { GoTo(*row); });
    add(Qt::Key_F, SearchToday);
    add(Qt::Key_D, ChooseDate);
}
