#include "core/frmHOME.h"

#include "core/Community.h"
#include "core/FocusInSight.h"
#include "core/FramePlace.h"
#include "core/ScaleKeys.h"
#include "core/ScreenKeys.h"
#include "core/WindowEdge.h"
#include "core/frmPrefs.h"
#include "core/ucMenu.h"
#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "toolkit/Accessible.h"
#include "toolkit/CleanUp.h"
#include "toolkit/Labels.h"
#include "toolkit/SpokenRole.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucTitleBar.h"

#include <QCloseEvent>
#include <QPainter>
#include <QShortcut>
#include <QTimer>

namespace {

constexpr QSize HomeSize(850, 620);
constexpr int BandHeight = 24;
constexpr int FirstTileTop = 66;
constexpr int TilePitch = 68;
constexpr int TitleButton = 32;
constexpr int TitlePicture = 16;
constexpr QSize LogoSize(22, 22);
constexpr int NoteMilliseconds = 6000;
constexpr QRect TitleInNest(14, 8, 182, 30); ///< the screens keep it free

// These buttons open the community page, not a screen.
constexpr ScreenRow CommunityPage{"",          "",          "cmdCommunity",
                                  "community", "Community", "Online Community"};
constexpr ScreenRow Logo{"", "", "cmdLogo", "logo", "", "Halvane"};

void Open(const ScreenRow& row) {
    if (*row.name)
        ShowScreen(row.name);
    else
        Community::Open();
}

} // namespace

frmHOME::frmHOME()
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint) {
    SetSpokenRole(this, QAccessible::Window);
    setObjectName(QStringLiteral("frmHOME"));
    setWindowTitle(QStringLiteral("Halvane"));
    setFixedSize(HomeSize);
    setMouseTracking(true);
    setAttribute(Qt::WA_DeleteOnClose);
    LayTop();
    LayCommands();
    LayNavigation();
    LayNest();
    AddShortcuts();
    edge_ = new WindowEdge(this);
    FocusInSight::AddTo(*this);
    AddCleanUp(this, [this] { AllOff(QString()); });
}

void frmHOME::Load() {
    const AppInfo& info = App().AppInfo;
    const QPoint stored(Twips::ToPixels(info.UILEFT), Twips::ToPixels(info.UITOP));
    move(PlaceOnScreens(stored, HomeSize, TheStyle().titleHeight));
    if (User::Current().UID != -1)
        ::ShowScreen(Screens::Main.name);
}

QPoint frmHOME::Place() const {
    return isMinimized() ? normalGeometry().topLeft() : pos();
}

void frmHOME::LayTop() {
    const Style& style = TheStyle();
    ucTitle_ = new ucTitleBar(this);
    ucTitle_->setObjectName(QStringLiteral("ucTitle"));
    ucTitle_->SetCaption(QStringLiteral("Halvane"));
    ucTitle_->setGeometry(0, 0, width(), style.titleHeight);
    connect(ucTitle_, &ucTitleBar::Moved, this, &frmHOME::Gather);

    ucButtonA* logo = AddNavigationButton(Logo);
    logo->SetPictureSize(LogoSize);
    logo->move(style.nestEdge - 2, (style.titleHeight - LogoSize.height()) / 2);
    const int left = width() - style.groupGap - 2 * TitleButton;
    ucButtonA* minimise = AddTitleButton("cmdMin", "minimise", "Minimise", left);
    ucButtonA* quit = AddTitleButton("cmdQuit", "close", "Close", left + TitleButton);
    connect(minimise, &ucButtonA::Click, this, &QWidget::showMinimized);
    connect(quit, &ucButtonA::Click, this, &frmHOME::QuitRequested);
}

ucButtonA* frmHOME::AddTitleButton(const char* name, const char* picture, const char* tip,
                                   int left) {
    auto* button = new ucButtonA(this);
    const Style& style = TheStyle();
    button->setObjectName(QLatin1String(name));
    button->SetPictures(QLatin1String(picture), QLatin1String(tip));
    button->SetTints(style.navigationInk, style.windowInk, style.windowPressedInk);
    button->SetPictureSize(QSize(TitlePicture, TitlePicture));
    button->setGeometry(left, 0, TitleButton, style.titleHeight);
    return button;
}

/// The band of the menu bar, above the navigation column and the nest.
void frmHOME::LayCommands() {
    picFrameTop_ = new QWidget(this);
    picFrameTop_->setObjectName(QStringLiteral("picFrameTop"));
    picFrameTop_->setGeometry(0, TheStyle().titleHeight, width(), BandHeight);
    picFrameTop_->setMouseTracking(true);
    menu_ = new ucMenu(picFrameTop_);
    connect(menu_, &ucMenu::Chosen, this,
            [this](int index) { MenuItems::All()[index].act(*this); });
    LayNote();
}

/// At the right end of the band, in the ink of headers.
void frmHOME::LayNote() {
    const int edge = TheStyle().nestEdge;
    lblNote_ = MakeLabel(picFrameTop_, QStringLiteral("lblNote"), {});
    lblNote_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblNote_->setGeometry(width() / 2, 0, width() / 2 - edge, BandHeight);
    lblNote_->hide();
    noteEnd_ = new QTimer(this);
    noteEnd_->setSingleShot(true);
    connect(noteEnd_, &QTimer::timeout, lblNote_, &QWidget::hide);
}

void frmHOME::Tell(const QString& note) {
    lblNote_->setText(note);
    lblNote_->show();
    TellAloud(lblNote_);
    noteEnd_->start(NoteMilliseconds);
}

void frmHOME::ResetMenu() {
    menu_->ResetMenu();
}

void frmHOME::LayNavigation() {
    int top = FirstTileTop;
    const auto add = [&](const ScreenRow& row) {
        ucButtonA* button = AddNavigationButton(row);
        button->SetCaptionBelow(QLatin1String(row.caption));
        button->move(0, top);
        top += TilePitch;
    };
    for (const ScreenRow* row : Screens::All)
        if (row->button)
            add(*row);
    add(CommunityPage);
}

ucButtonA* frmHOME::AddNavigationButton(const ScreenRow& row) {
    const QString hover = QLatin1String(row.hover);
    auto* button = new ucButtonA(this);
    button->setObjectName(QLatin1String(row.button));
    button->SetPictures(QLatin1String(row.picture), hover);
    button->installEventFilter(this);
    connect(button, &ucButtonA::MouseMove, this, [this, button, hover] { OnHover(button, hover); });
    connect(button, &ucButtonA::Click, this, [this, &row] {
        ResetMenu();
        Open(row);
    });
    buttons_ << NavigationButton{button, QLatin1String(row.name)};
    return button;
}

void frmHOME::LayNest() {
    const Style& style = TheStyle();
    const QPoint corner(style.navigationWidth, style.titleHeight + BandHeight);
    picNest_ = new QWidget(this);
    picNest_->setObjectName(QStringLiteral("picNest"));
    picNest_->setGeometry(QRect(corner, QPoint(width() - 1, height() - 1)));
    picNest_->setMouseTracking(true);
    aaWindow_ = new ucAALBL(this);
    aaWindow_->setObjectName(QStringLiteral("aaWindow"));
    aaWindow_->SetFont(style.screenTitle);
    aaWindow_->SetBackColor(style.canvas);
    aaWindow_->SetForeColor(style.heading);
    const QRect line = TitleInNest.translated(corner);
    aaWindow_->move(line.left(), line.center().y() + 1 - aaWindow_->sizeHint().height() / 2);
    aaWindow_->SetCaption(QString());
}

void frmHOME::AddShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    add(QKeySequence(Qt::ALT | Qt::Key_F4), &frmHOME::QuitRequested);
    add(QKeySequence(Qt::CTRL | Qt::Key_Q), &frmHOME::QuitRequested);
    add(QKeySequence(Qt::CTRL | Qt::Key_Comma), [this] { frmPrefs(this).ShowModal(); });
    ScreenKeys::AddTo(*this);
    ScaleKeys::AddTo(*this);
}

void frmHOME::ShowFront(const QString& screen) {
    for (const NavigationButton& row : std::as_const(buttons_))
        row.button->SetChosen(!screen.isEmpty() && screen == row.screen);
    aaWindow_->SetCaption(App().WindowTitle);
    aaWindow_->raise();
    edge_->raise();
}

void frmHOME::OnHover(ucButtonA* button, const QString& text) {
    AllOff(button->objectName());
    aaWindow_->SetCaption(text);
}

void frmHOME::AllOff(const QString& name) {
    for (const NavigationButton& row : std::as_const(buttons_))
        if (name.compare(row.button->objectName(), Qt::CaseInsensitive) != 0)
            row.button->Reset();
    if (name.isEmpty())
        aaWindow_->SetCaption(App().WindowTitle);
}

/// The pointer has left a button.
bool frmHOME::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Leave)
        AllOff(QString());
    return QWidget::eventFilter(watched, event);
}

void frmHOME::mouseMoveEvent(QMouseEvent*) {
    AllOff(QString());
}

void frmHOME::paintEvent(QPaintEvent*) {
    const Style& style = TheStyle();
    const QRect nest = picNest_->geometry();
    const QRect band = picFrameTop_->geometry();
    QPainter painter(this);
    painter.fillRect(QRect(0, nest.top(), nest.left(), nest.height()), style.navigation);
    painter.fillRect(nest, style.canvas);
    painter.fillRect(band, style.header.from);
    PaintEdge(painter, band, Qt::BottomEdge, style.header.to);
}

void frmHOME::closeEvent(QCloseEvent* event) {
    Q_EMIT QuitRequested();
    event->accept();
}

void frmHOME::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Q_EMIT Gather();
}
