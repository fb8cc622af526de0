#include "core/Flow.h"

#include "core/Appearance.h"
#include "core/HeldRecords.h"
#include "core/Navigation.h"
#include "core/OwnSnapshots.h"
#include "core/SingleInstance.h"
#include "core/StartFailure.h"
#include "core/Tips.h"
#include "core/UpdateNotice.h"
#include "core/frmEULA.h"
#include "core/frmHOME.h"
#include "core/frmSplash.h"
#include "core/frmWelcome.h"
#include "drawing/Twips.h"
#include "model/Profiles.h"
#include "records/OwnRecords.h"
#include "records/RecordsFolder.h"
#include "records/UpgradeSnapshot.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "runtime/RuntimeError.h"
#include "runtime/Seams.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "runtime/StartSettings.h"
#include "store/Connection.h"

#include <QApplication>
#include <QScopedValueRollback>

#include <future>
#include <memory>

namespace {

/// A step of the start. A step that returns false ends the start without an error.
struct Step {
    const char* name; ///< in the line that reports a failure
    bool (*run)();
};

std::unique_ptr<UpdateNotice> updateNotice;
std::future<void> tipRemembered;

bool TakeAppearance() {
    Appearance::Take();
    return true;
}

void ShowUpdateNotice() {
    Appearance::Take();
    updateNotice = std::make_unique<UpdateNotice>();
}

bool TakeRecords() {
    const OwnRecords records;
    records.MakeFolder();
    HeldRecords::Take();
    if (UpgradeSnapshot::IsNeeded(RecordsFolder(RecordsPath())))
        ShowUpdateNotice();
    OwnSnapshots::BeforeUpgrade();
    if (HeldRecords::AreHeld())
        records.Update();
    return true;
}

bool OpenUsers() {
    UserDB().Open(RecordsFolder(RecordsPath()).Users(), DatabaseKind::Users);
    return true;
}

bool OpenFoods() {
    FoodDB().Open(RecordsFolder(RecordsPath()).Foods(), DatabaseKind::Foods);
    updateNotice.reset();
    return true;
}

bool ReadFirstSettings() {
    StartSettings::ReadFirst(App().AppInfo);
    return true;
}

bool AskAgreement() {
    if (StartSettings::Agreed() || frmEULA::Ask())
        return true;
    EndProcess();
    return false;
}

bool ShowSplash() {
    frmSplash().exec();
    return true;
}

bool ReadSettings() {
    StartSettings::ReadRest(App().AppInfo);
    return true;
}

/// A thread remembers the tip while the first window is made: that waits for the disk.
bool ChooseTip() {
    const Tips::Tip tip = Tips::Next();
    App().TipOfTheDay = tip.text;
    tipRemembered = std::async(std::launch::async, &Tips::Remember, tip);
    return true;
}

bool LoadFirstUser() {
    User::ResetCurrent();
    if (const auto first = Profiles::First())
        User::Current() = *first;
    return true;
}

void OpenFirstWindow() {
    frmHOME* frame = TheNavigation().Frame();
    QObject::connect(frame, &frmHOME::QuitRequested, frame, &Flow::QuitApp);
    if (User::Current().UID == -1) {
        frmWelcome::Open();
        return;
    }
    new OwnSnapshots(frame);
    ShowHome();
}

bool ShowFirstWindow() {
    OpenFirstWindow();
    tipRemembered.get();
    return true;
}

constexpr Step Steps[] = {
    {"records", TakeRecords},        {"users.mdb", OpenUsers},          {"foods.mdb", OpenFoods},
    {"settings", ReadFirstSettings}, {"appearance", TakeAppearance},    {"agreement", AskAgreement},
    {"splash", ShowSplash},          {"settings", ReadSettings},        {"tips.txt", ChooseTip},
    {"users.mdb", LoadFirstUser},    {"first window", ShowFirstWindow},
};

/// A Wayland compositor keeps to itself where a window is.
bool PlatformTellsPlaces() {
    return !QGuiApplication::platformName().startsWith(u"wayland");
}

void StorePosition() {
    if (!TheNavigation().HasFrame() || !PlatformTellsPlaces())
        return;
    const QPoint place = TheNavigation().Frame()->Place();
    SetRegValue(Settings::Left, QString::number(Twips::FromPixels(place.x())));
    SetRegValue(Settings::Top, QString::number(Twips::FromPixels(place.y())));
}

void CloseForms() {
    TheNavigation().CloseAll();
    QApplication::closeAllWindows();
}

void CloseConnections() {
    UserDB().Close();
    FoodDB().Close();
    HeldRecords::Release();
}

/// The frame if it is visible, otherwise any visible window.
QWidget* AnyWindow() {
    if (TheNavigation().HasFrame() && TheNavigation().Frame()->isVisible())
        return TheNavigation().Frame();
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            return window;
    return nullptr;
}

/// Under Wayland a program does not know that its window is minimised, and cannot undo it. A window
/// that is hidden and shown anew is seen. A dialog that is hidden would end.
bool MustBeShownAnew() {
    return !PlatformTellsPlaces() && QGuiApplication::applicationState() != Qt::ApplicationActive &&
           !QApplication::activeModalWidget();
}

void Restore(QWidget* window) {
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    if (!MustBeShownAnew())
        return;
    window->hide();
    window->show();
}

bool quitting = false;

} // namespace

int Flow::Main(SingleInstance& instance) {
    if (!instance.Claim())
        return 0;
    QObject::connect(&instance, &SingleInstance::Activated, qApp, &Flow::BringForward);
    App().AppStarted = true;
    for (const Step& step : Steps) {
        try {
            if (!step.run())
                return 0;
        } catch (const std::exception& error) {
            updateNotice.reset();
            StartFailure::Report(error, QString::fromLatin1(step.name));
            return 1;
        }
    }
    return 0;
}

void Flow::QuitApp() {
    if (quitting)
        return;
    const QScopedValueRollback<bool> once(quitting, true);
    try {
        StorePosition();
        CloseForms();
        CloseConnections();
    } catch (const RuntimeError&) {
        if (HasWindow())
            return;
    }
    QCoreApplication::quit();
}

bool Flow::HasWindow() {
    return AnyWindow() != nullptr;
}

void Flow::BringForward() {
    for (QWidget* window : {AnyWindow(), QApplication::activeModalWidget()}) {
        if (!window)
            continue;
        Restore(window);
        window->raise();
        window->activateWindow();
    }
}
