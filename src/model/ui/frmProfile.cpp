#include "model/ui/frmProfile.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "model/Profiles.h"
#include "model/ui/ProfileBasics.h"
#include "model/ui/ProfileTargets.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "toolkit/CentreWindow.h"
#include "toolkit/LeaveField.h"
#include "toolkit/SpokenRole.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucTitleFlat.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

namespace {
constexpr QSize NestSize(766, 562);
constexpr QSize FirstUserSize(766, 470);
constexpr int ContentsTop = 42;
constexpr int DragBand = 255; // twips

QWidget* HomeWindow() {
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window->objectName() == u"frmHOME")
            return window;
    return nullptr;
}
} // namespace

frmProfile::frmProfile(QWidget* parent)
    : ScreenForm(Screens::Profile, parent)
    , title_(new ucTitleFlat(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    resize(NestSize);
    title_->setObjectName(QStringLiteral("ucTitleFlat1"));
    title_->SetCaption(Title());
    MakePages();
    AddButtons();
    LayOut();
    Cover(true);
}

void frmProfile::MakePages() {
    basics_ = new ProfileBasics(this);
    targets_ = new ProfileTargets(this);
}

void frmProfile::AddButtons() {
    cmdAdvanced_ = AddButton("cmdAdvanced", "Advanced", &frmProfile::cmdAdvanced_Click);
    cmdSave_ = AddButton("cmdSave", "Save Profile", &frmProfile::cmdSave_Click);
    cmdCancel_ = AddButton("cmdCancel", "Cancel", &frmProfile::cmdCancel_Click);
    cmdSave_->SetMainAction(true);
}

void frmProfile::LayOut() {
    const Style& style = TheStyle();
    auto* page = new QGridLayout(this);
    page->setContentsMargins(style.nestEdge, ContentsTop, style.nestEdge, 10);
    page->setSpacing(style.boxGap);
    page->addWidget(basics_, 0, 0);
    page->addWidget(targets_, 0, 0);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdAdvanced_);
    buttons->addStretch();
    buttons->addWidget(cmdSave_);
    buttons->addWidget(cmdCancel_);
    page->addLayout(buttons, 1, 0);
}

void frmProfile::CreateFirstUser() {
    QPointer<frmProfile> form = new frmProfile;
    form->firstUser_ = true;
    form->cmdAdvanced_->hide();
    form->ShowModally();
    delete form.data();
}

/// The loop must end with the form. Otherwise it takes a press meant for the next window.
void frmProfile::ShowModally() {
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowModality(Qt::ApplicationModal);
    SetSpokenRole(this, QAccessible::Dialog);
    resize(FirstUserSize);
    CentreWindow(this);
    QEventLoop untilClosed;
    connect(this, &frmProfile::Closed, &untilClosed, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &untilClosed, &QEventLoop::quit);
    show();
    basics_->FocusFirst();
    untilClosed.exec();
}

void frmProfile::CreateUser() {
    cmdAdvanced_->hide();
    newUser_ = true;
}

/// A weight that is still being typed on the day screen is saved first, so that the form shows it.
void frmProfile::EditUser(qint32 uid) {
    auto* form = qobject_cast<frmProfile*>(LoadScreen(Screens::Profile.name));
    if (!form)
        return;
    LeaveField(form->window());
    form->LoadUser(uid);
    ShowScreen(form->objectName());
}

void frmProfile::LoadUser(qint32 uid) {
    newUser_ = false;
    firstUser_ = false;
    uid_ = uid;
    const Profile profile = Profiles::Read(uid);
    basics_->Show(profile);
    targets_->Show(profile.targets);
    cmdAdvanced_->show();
    title_->hide();
}

void frmProfile::DoWinInit() {
    basics_->FocusFirst();
}

void frmProfile::cmdAdvanced_Click() {
    Cover(tag_ != u"0");
}

/// The hidden page cannot be reached with the keyboard.
void frmProfile::Cover(bool covered) {
    tag_ = covered ? QStringLiteral("0") : QStringLiteral("1");
    basics_->setVisible(covered);
    targets_->setVisible(!covered);
}

void frmProfile::cmdSave_Click() {
    if (!newUser_ && !firstUser_)
        return SaveChanges();
    if (!SaveNewUser() || !firstUser_)
        return;
    firstUser_ = false;
    ShowHome();
    ShowScreen(Screens::Main.name);
    ShowAlert(QStringLiteral(
        "Your profile has been created. The RDI values created should be used only as guidelines. "
        "You can edit these values by using the 'Edit My Profile' feature (under the 'Edit' "
        "menu)."));
}

void frmProfile::cmdCancel_Click() {
    if (!firstUser_)
        return Leave();
    const QString question =
        QStringLiteral("You must create a user profile to use Halvane. Are you sure you wish to "
                       "quit without creating your profile?");
    if (!ShowAlert(question, HomeWindow(), true))
        return;
    leaving_ = true;
    EndProcess();
}

void frmProfile::Leave() {
    leaving_ = true;
    close();
}

Profile frmProfile::Entered() const {
    Profile entered = basics_->Entered();
    entered.targets = targets_->Entered();
    return entered;
}

bool frmProfile::Accept(const QString& problem) {
    if (!problem.isEmpty())
        ShowAlert(problem, this);
    return problem.isEmpty();
}

bool frmProfile::SaveNewUser() {
    const Profile entered = Entered();
    if (!Accept(Profiles::ProblemWithNew(entered)))
        return false;
    const User user = Profiles::Append(entered);
    if (firstUser_)
        User::Current() = user;
    Leave();
    return true;
}

void frmProfile::SaveChanges() {
    const Profile entered = Entered();
    if (!Accept(Profiles::ProblemWithChange(uid_, entered)))
        return;
    Profiles::Change(uid_, entered);
    Leave();
    if (uid_ != User::Current().UID)
        return;
    User::Current().GetUserProfile(uid_);
    RecalcTargets();
}

/// A window of its own has an edge.
void frmProfile::paintEvent(QPaintEvent* event) {
    ScreenForm::paintEvent(event);
    if (!isWindow())
        return;
    QPainter painter(this);
    PaintFrame(painter, rect(), TheStyle().frame);
}

/// Without a profile the program cannot go on: closing the window asks the question of Cancel.
void frmProfile::closeEvent(QCloseEvent* event) {
    event->setAccepted(leaving_ || !firstUser_);
    if (event->isAccepted())
        Q_EMIT Closed();
    else
        cmdCancel_Click();
}

void frmProfile::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && firstUser_)
        return cmdCancel_Click();
    ScreenForm::keyPressEvent(event);
}

/// Only a window of its own can be dragged.
void frmProfile::mousePressEvent(QMouseEvent* event) {
    const bool inBand = event->position().y() < Twips::ToPixels(DragBand);
    dragging_ = isWindow() && event->button() == Qt::LeftButton && inBand;
    grip_ = event->globalPosition().toPoint() - pos();
}

void frmProfile::mouseMoveEvent(QMouseEvent* event) {
    if (dragging_ && event->buttons() & Qt::LeftButton)
        move(event->globalPosition().toPoint() - grip_);
    ScreenForm::mouseMoveEvent(event);
}

void frmProfile::mouseReleaseEvent(QMouseEvent*) {
    dragging_ = false;
}
