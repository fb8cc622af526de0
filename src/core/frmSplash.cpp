#include "core/frmSplash.h"

#include "toolkit/CentreWindow.h"
#include "toolkit/Labels.h"
#include "toolkit/Pictures.h"
#include "toolkit/Style.h"

#include <QPainter>
#include <QShowEvent>
#include <QTimer>

namespace {

constexpr QSize splashSize(420, 300);
constexpr int shownFor = 2000; ///< milliseconds
constexpr QRect picture(150, 36, 120, 120);
constexpr int nameTop = 172;
constexpr int lineTop = 208;
constexpr int versionTop = 260;

void LayLine(QLabel* label, int top) {
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label->setGeometry(0, top, splashSize.width(), label->sizeHint().height());
}

} // namespace

frmSplash::frmSplash(QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint)
    , tmrClose_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QStringLiteral("Halvane"));
    setFixedSize(splashSize);
    setModal(true);
    LayTexts();
    tmrClose_->setObjectName(QStringLiteral("tmrClose"));
    tmrClose_->setSingleShot(true);
    tmrClose_->start(shownFor);
    connect(tmrClose_, &QTimer::timeout, this, &QDialog::accept);
}

void frmSplash::LayTexts() {
    QLabel* name =
        MakeLabel(this, QStringLiteral("lblName"), QStringLiteral("Halvane"), TextRole::CardTitle);
    LayLine(name, nameTop);
    LayLine(MakeLabel(this, QStringLiteral("lblWhat"),
                      QStringLiteral("What you eat, day by day, beside what you need")),
            lineTop);
    LayLine(MakeLabel(this, QStringLiteral("lblVersion"),
                      QStringLiteral("Version " HALVANE_VERSION), TextRole::Quiet),
            versionTop);
}

/// The platform's own place leaves room for a title bar, which this window has not.
void frmSplash::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        CentreWindow(this);
}

void frmSplash::paintEvent(QPaintEvent*) {
    const Style& style = TheStyle();
    QPainter painter(this);
    painter.fillRect(rect(), style.canvas);
    Pictures::Paint(painter, picture, QStringLiteral("logo"));
    painter.setPen(style.frame);
    painter.drawRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5));
}

void frmSplash::mousePressEvent(QMouseEvent*) {
    accept();
}

void frmSplash::keyPressEvent(QKeyEvent*) {
    accept();
}
