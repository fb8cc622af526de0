#include "core/Navigation.h"

#include "core/frmAlert.h"
#include "core/frmHOME.h"
#include "runtime/AppState.h"
#include "runtime/RuntimeError.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "toolkit/LeaveField.h"
#include "toolkit/MousePointer.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>

Navigation& TheNavigation() {
    static Navigation navigation;
    return navigation;
}

Navigation::Navigation() = default;
Navigation::~Navigation() = default;

void Navigation::Register(const QString& name, const Factory& factory) {
    factories_.insert(name, factory);
}

void Navigation::InstallSeams() {
    Seams& seams = TheSeams();
    // A message without an owner goes over the frame, not to the middle of the desktop.
    seams.ShowAlert = [this](const QString& message, QObject* owner, bool showCancel) {
        return frmAlert::Ask(message, owner ? owner : frame_.data(), showCancel);
    };
    seams.LoadScreen = [this](const QString& name) { return LoadScreen(name); };
    seams.ShowScreen = [this](const QString& name) { return ShowScreen(name); };
    seams.ShowHome = [this] { ShowHome(); };
}

bool Navigation::HasFrame() const {
    return frame_ != nullptr;
}

frmHOME* Navigation::Frame() {
    if (!frame_) {
        frame_ = new frmHOME;
        connect(frame_, &frmHOME::Gather, this, &Navigation::GatherWindows);
        frame_->Load();
    }
    return frame_;
}

bool Navigation::HasScreen(const QString& name) const {
    return factories_.contains(name);
}

ScreenForm* Navigation::LoadScreen(const QString& name) {
    if (!HasScreen(name))
        return nullptr;
    frmHOME* frame = Frame(); // loading the frame may load the screen
    if (ScreenForm* loaded = loaded_.value(name))
        return loaded;
    ScreenForm* screen = factories_[name](frame);
    screen->setAttribute(Qt::WA_DeleteOnClose);
    screen->setGeometry(frame->picNest()->geometry());
    screen->hide();
    screen->installEventFilter(this);
    loaded_.insert(name, screen);
    return screen;
}

/// A failure in a step skips the rest and leaves the pointer as it is. Committing the field that is
/// left comes first, and may show a message.
ScreenForm* Navigation::ShowScreen(const QString& name) {
    if (!HasScreen(name))
        return nullptr;
    LeaveField(frame_);
    ScreenForm* screen = nullptr;
    try {
        MousePointer::SetBusy();
        const bool fresh = !loaded_.value(name);
        ScreenForm* next = LoadScreen(name);
        if (name == QLatin1String(Screens::Profile.name))
            Cover(next);
        else
            LeaveOthers(fresh ? next : nullptr);
        screen = LoadScreen(name);
        if (name == QLatin1String(Screens::Day.name))
            Frame()->ResetMenu();
        screen->BeforeShow();
        Bring(screen);
        ShowTitle(screen->Title());
        screen->DoWinInit();
        MousePointer::SetNormal();
    } catch (const RuntimeError&) {
        return screen;
    }
    return screen;
}

/// Closes all loaded screens, or hides them if the setting FAST is on. This includes the screen to
/// be shown, which is then rebuilt, unless it is new.
void Navigation::LeaveOthers(const ScreenForm* fresh) {
    const QScopedValueRollback<bool> own(arranging_, true);
    beneath_.clear();
    front_.clear();
    for (const QPointer<ScreenForm>& screen : loaded_.values()) {
        if (!screen || screen == fresh)
            continue;
        if (App().AppInfo.FAST)
            screen->hide();
        else
            Close(screen);
    }
}

void Navigation::Cover(ScreenForm* next) {
    if (!front_ || front_ == next)
        return;
    const QScopedValueRollback<bool> own(arranging_, true);
    beneath_ = front_;
    beneath_->hide();
}

void Navigation::Bring(ScreenForm* screen) {
    front_ = screen;
    screen->setGeometry(Frame()->picNest()->geometry());
    screen->show();
    screen->raise();
    screen->update();
    if (!screen->isAncestorOf(QApplication::focusWidget()))
        screen->setFocus(Qt::OtherFocusReason); // so that Tab goes to its first control
}

/// The screen below returns unchanged, unless another one is in front now.
void Navigation::Uncover() {
    if (front_ || !frame_)
        return;
    const QPointer<ScreenForm> screen = beneath_;
    beneath_.clear();
    if (screen)
        Bring(screen);
    ShowTitle(screen ? screen->Title() : QString());
}

void Navigation::Close(ScreenForm* screen) {
    loaded_.remove(screen->objectName());
    screen->close();
    screen->setParent(nullptr);
}

void Navigation::ShowTitle(const QString& title) {
    App().WindowTitle = title;
    Frame()->ShowFront(front_ ? front_->objectName() : QString());
}

void Navigation::ShowHome() {
    Frame()->show();
    Frame()->raise();
    Frame()->activateWindow();
    Frame()->update();
}

void Navigation::GatherWindows() {
    for (const QPointer<ScreenForm>& screen : std::as_const(loaded_))
        if (screen)
            screen->setGeometry(Frame()->picNest()->geometry());
}

void Navigation::CloseAll() {
    LeaveField(frame_);
    const QScopedValueRollback<bool> own(arranging_, true);
    for (const QPointer<ScreenForm>& screen : loaded_.values())
        if (screen)
            Close(screen);
    loaded_.clear();
    beneath_.clear();
    if (frame_)
        frame_->close();
}

void Navigation::Reset() {
    CloseAll();
    delete frame_;
    factories_.clear();
}

/// Forgets a screen that closes itself. The screen below it returns only after the closing routine
/// has ended, so that it shows the changes of that routine.
bool Navigation::eventFilter(QObject* watched, QEvent* event) {
    if (arranging_ || event->type() != QEvent::HideToParent)
        return false;
    loaded_.remove(watched->objectName());
    if (watched != front_)
        return false;
    front_.clear();
    QMetaObject::invokeMethod(this, &Navigation::Uncover, Qt::QueuedConnection);
    return false;
}
