#include "core/Navigation.h"

#include "core/ScreenNames.h"
#include "core/frmAlert.h"
#include "core/frmHOME.h"
#include "runtime/AppState.h"
#include "runtime/RuntimeError.h"
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
    // A message that belongs to no window stands over the frame, not in the middle of a wide
    // screen.
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

Screen* Navigation::LoadScreen(const QString& name) {
    if (!HasScreen(name))
        return nullptr;
    frmHOME* frame = Frame(); // its own loading may bring the screen
    if (Screen* loaded = loaded_.value(name))
        return loaded;
    Screen* screen = factories_[name](frame);
    screen->setAttribute(Qt::WA_DeleteOnClose);
    screen->setGeometry(frame->picNest()->geometry());
    screen->hide();
    screen->installEventFilter(this);
    loaded_.insert(name, screen);
    return screen;
}

/// A failure in a step skips the rest of them, and leaves the pointer as it is. What the person is
/// told of a field that is left comes before the first step.
Screen* Navigation::ShowScreen(const QString& name) {
    if (!HasScreen(name))
        return nullptr;
    LeaveField(frame_);
    Screen* screen = nullptr;
    try {
        MousePointer::SetBusy();
        const bool fresh = !loaded_.value(name);
        Screen* next = LoadScreen(name);
        if (name == ScreenNames::Profile)
            Cover(next);
        else
            LeaveOthers(fresh ? next : nullptr);
        screen = LoadScreen(name);
        if (name == ScreenNames::Day)
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

/// All loaded screens are closed, or only hidden where the setting says so: among them the one to
/// be shown, which then comes up anew, unless it has just been made.
void Navigation::LeaveOthers(const Screen* fresh) {
    const QScopedValueRollback<bool> own(arranging_, true);
    beneath_.clear();
    front_.clear();
    for (const QPointer<Screen>& screen : loaded_.values()) {
        if (!screen || screen == fresh)
            continue;
        if (App().AppInfo.FAST)
            screen->hide();
        else
            Close(screen);
    }
}

void Navigation::Cover(Screen* next) {
    if (!front_ || front_ == next)
        return;
    const QScopedValueRollback<bool> own(arranging_, true);
    beneath_ = front_;
    beneath_->hide();
}

void Navigation::Bring(Screen* screen) {
    front_ = screen;
    screen->setGeometry(Frame()->picNest()->geometry());
    screen->show();
    screen->raise();
    screen->update();
    if (!screen->isAncestorOf(QApplication::focusWidget()))
        screen->setFocus(Qt::OtherFocusReason); // Tab then leads to its first control
}

/// What the closed screen has covered comes back as it was left, unless another has come instead.
void Navigation::Uncover() {
    if (front_ || !frame_)
        return;
    const QPointer<Screen> screen = beneath_;
    beneath_.clear();
    if (screen)
        Bring(screen);
    ShowTitle(screen ? screen->Title() : QString());
}

void Navigation::Close(Screen* screen) {
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
    for (const QPointer<Screen>& screen : std::as_const(loaded_))
        if (screen)
            screen->setGeometry(Frame()->picNest()->geometry());
}

void Navigation::CloseAll() {
    LeaveField(frame_);
    const QScopedValueRollback<bool> own(arranging_, true);
    for (const QPointer<Screen>& screen : loaded_.values())
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

/// A screen that goes away by itself is forgotten. What it covered comes back when the routine that
/// closed it has ended, so that it shows what that routine has changed.
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
