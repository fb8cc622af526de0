#include "core/frmSplash.h"

#include "core/CentredLine.h"
#include "drawing/DevicePixels.h"
#include "drawing/Pictures.h"
#include "drawing/Style.h"
#include "toolkit/CentreWindow.h"
#include "toolkit/Labels.h"

#include <QPainter>
#include <QShowEvent>
#include <QTimer>

namespace {

constexpr QSize SplashSize(420, 300);
constexpr int ShownFor = 2000; ///< milliseconds
constexpr QRect Picture(150, 36, 120, 120);
constexpr int NameTop = 172;
constexpr int LineTop = 208;
constexpr int VersionTop = 260;
} // namespace

frmSplash::frmSplash(QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint)
    , tmrClose_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QStringLiteral("Halvane"));
    setFixedSize(SplashSize);
    setModal(true);
    LayTexts();
    tmrClose_->setObjectName(QStringLiteral("tmrClose"));
    tmrClose_->setSingleShot(true);
    tmrClose_->start(ShownFor);
    connect(tmrClose_, &QTimer::timeout, this, &QDialog::accept);
}

void frmSplash::LayTexts() {
    QLabel* name =
        MakeLabel(this, QStringLiteral("lblName"), QStringLiteral("Halvane"), TextRole::CardTitle);
    LayCentred(name, NameTop);
    LayCentred(MakeLabel(this, QStringLiteral("lblWhat"),
                         QStringLiteral("What you eat, day by day, beside what you need")),
               LineTop);
    LayCentred(MakeLabel(this, QStringLiteral("lblVersion"),
                         QStringLiteral("Version " HALVANE_VERSION), TextRole::Quiet),
               VersionTop);
}

/// The default position leaves room for a title bar, which this window does not have.
void frmSplash::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        CentreWindow(this);
}

void frmSplash::paintEvent(QPaintEvent*) {
    const Style& style = TheStyle();
    QPainter painter(this);
    painter.fillRect(rect(), style.canvas);
    Pictures::Paint(painter, Picture, QStringLiteral("logo"));
    PaintFrame(painter, rect(), style.frame);
}

void frmSplash::mousePressEvent(QMouseEvent*) {
    accept();
}

void frmSplash::keyPressEvent(QKeyEvent*) {
    accept();
}
