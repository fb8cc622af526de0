#include "core/frmHOME.h"

#include "core/Community.h"
#include "core/FramePlace.h"
#include "core/ScreenNames.h"
#include "core/frmPrefs.h"
#include "core/ucMenu.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Seams.h"
#include "toolkit/CleanUp.h"
#include "toolkit/Style.h"
#include "toolkit/Twips.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucTitleBar.h"

#include <QCloseEvent>
#include <QPainter>
#include <QShortcut>

namespace {

constexpr QSize homeSize(850, 620);
constexpr int bandHeight = 24;
constexpr int firstTileTop = 66;
constexpr int tilePitch = 68;
constexpr int titleButton = 32;
constexpr int titlePicture = 16;
constexpr QSize logoSize(22, 22);
constexpr QRect titleInNest(14, 8, 182, 30); ///< kept free by the screens for their title

/// One of the buttons that bring a screen: the last one stands in the title bar.
struct NavigationButton {
    const char* name;
    const char* screen; ///< empty where it opens the community page
    const char* picture;
    const char* caption;
    const char* hover;
};

constexpr NavigationButton navigationButtons[] = {
    {"cmdCal", ScreenNames::Home, "calendar", "Main", "Main"},
    {"cmdDay", ScreenNames::Day, "daily", "Daily", "Daily Details"},
    {"cmdReport", ScreenNames::Report, "reports", "Reports", "Reports"},
    {"cmdCustomFoods", ScreenNames::CustomFoods, "apple", "My Foods", "Custom Foods"},
    {"cmdRecipes", ScreenNames::Recipes, "book", "Recipes", "Recipe Manager"},
    {"cmdCommunity", "", "community", "Community", "Online Community"},
    {"cmdLogo", "", "logo", "", "Halvane"},
};
constexpr int logoIndex = 6;

void Open(const QString& screen) {
    if (screen.isEmpty())
        Community::Open();
    else
        ShowScreen(screen);
}

} // namespace

frmHOME::frmHOME()
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint) {
    setObjectName(QStringLiteral("frmHOME"));
    setWindowTitle(QStringLiteral("Halvane"));
    setFixedSize(homeSize);
    setMouseTracking(true);
    setAttribute(Qt::WA_DeleteOnClose);
    LayTop();
    LayCommands();
    LayNavigation();
    LayNest();
    AddShortcuts();
    AddCleanUp(this, [this] { AllOff(QString()); });
}

void frmHOME::Load() {
    const AppInfo& info = App().AppInfo;
    const QPoint stored(Twips::ToPixels(info.UILEFT), Twips::ToPixels(info.UITOP));
    move(PlaceOnScreens(stored, homeSize, TheStyle().titleHeight));
    if (User::Current().UID != -1)
        ::ShowScreen(ScreenNames::Home);
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

    ucButtonA* logo = AddNavigationButton(logoIndex);
    logo->SetPictureSize(logoSize);
    logo->move(style.nestEdge - 2, (style.titleHeight - logoSize.height()) / 2);
    const int left = width() - style.groupGap - 2 * titleButton;
    ucButtonA* minimise = AddTitleButton("cmdMin", "minimise", "Minimise", left);
    ucButtonA* quit = AddTitleButton("cmdQuit", "close", "Close", left + titleButton);
    connect(minimise, &ucButtonA::Click, this, &QWidget::showMinimized);
    connect(quit, &ucButtonA::Click, this, &frmHOME::QuitRequested);
}

ucButtonA* frmHOME::AddTitleButton(const char* name, const char* picture, const char* tip,
                                   int left) {
    auto* button = new ucButtonA(this);
    const Style& style = TheStyle();
    button->setObjectName(QLatin1String(name));
    button->SetPictures(QLatin1String(picture), QLatin1String(tip));
    button->SetTints(style.navigationInk, style.windowInk, style.rule);
    button->SetPictureSize(QSize(titlePicture, titlePicture));
    button->setGeometry(left, 0, titleButton, style.titleHeight);
    return button;
}

/// The band on which the commands stand, up to the column's and the nest's upper edge.
void frmHOME::LayCommands() {
    picFrameTop_ = new QWidget(this);
    picFrameTop_->setObjectName(QStringLiteral("picFrameTop"));
    picFrameTop_->setGeometry(0, TheStyle().titleHeight, width(), bandHeight);
    picFrameTop_->setMouseTracking(true);
    menu_ = new ucMenu(picFrameTop_);
    connect(menu_, &ucMenu::Chosen, this,
            [this](int index) { MenuItems::All()[index].act(*this); });
}

void frmHOME::ResetMenu() {
    menu_->ResetMenu();
}

void frmHOME::LayNavigation() {
    for (int index = 0; index < logoIndex; ++index) {
        ucButtonA* button = AddNavigationButton(index);
        button->SetCaptionBelow(QLatin1String(navigationButtons[index].caption));
        button->move(0, firstTileTop + index * tilePitch);
    }
}

ucButtonA* frmHOME::AddNavigationButton(int index) {
    const NavigationButton& row = navigationButtons[index];
    const QString hover = QLatin1String(row.hover);
    const QString screen = QLatin1String(row.screen);
    auto* button = new ucButtonA(this);
    button->setObjectName(QLatin1String(row.name));
    button->SetPictures(QLatin1String(row.picture), hover);
    button->installEventFilter(this);
    connect(button, &ucButtonA::MouseMove, this, [this, button, hover] { OnHover(button, hover); });
    connect(button, &ucButtonA::Click, this, [this, screen] {
        ResetMenu();
        Open(screen);
    });
    buttons_[index] = button;
    return button;
}

void frmHOME::LayNest() {
    const Style& style = TheStyle();
    const QPoint corner(style.navigationWidth, style.titleHeight + bandHeight);
    picNest_ = new QWidget(this);
    picNest_->setObjectName(QStringLiteral("picNest"));
    picNest_->setGeometry(QRect(corner, QPoint(width() - 1, height() - 1)));
    picNest_->setMouseTracking(true);
    aaWindow_ = new ucAALBL(this);
    aaWindow_->setObjectName(QStringLiteral("aaWindow"));
    aaWindow_->SetFont(style.screenTitle);
    aaWindow_->SetBackColor(style.canvas);
    aaWindow_->SetForeColor(style.heading);
    const QRect line = titleInNest.translated(corner);
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
}

void frmHOME::ShowFront(const QString& screen) {
    for (int index = 0; index < logoIndex; ++index)
        buttons_[index]->SetChosen(!screen.isEmpty() &&
                                   screen == QLatin1String(navigationButtons[index].screen));
    aaWindow_->SetCaption(App().WindowTitle);
    aaWindow_->raise();
}

void frmHOME::OnHover(ucButtonA* button, const QString& text) {
    AllOff(button->objectName());
    aaWindow_->SetCaption(text);
}

void frmHOME::AllOff(const QString& name) {
    for (ucButtonA* button : buttons_)
        if (name.compare(button->objectName(), Qt::CaseInsensitive) != 0)
            button->Reset();
    if (name.isEmpty())
        aaWindow_->SetCaption(App().WindowTitle);
}

/// The platform tells when the pointer leaves a button.
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
    painter.setPen(style.header.to);
    painter.drawLine(band.bottomLeft(), band.bottomRight());
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
