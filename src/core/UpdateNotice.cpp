#include "core/UpdateNotice.h"

#include "core/CentredLine.h"
#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "toolkit/CentreWindow.h"
#include "toolkit/Labels.h"

#include <QEventLoop>
#include <QPainter>
#include <QTimer>

namespace {
constexpr QSize NoticeSize(420, 110);
constexpr int TitleTop = 28;
constexpr int LineTop = 66;
constexpr int LongestWait = 500; ///< milliseconds, for a screen that paints nothing
} // namespace

UpdateNotice::UpdateNotice()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("UpdateNotice"));
    setWindowTitle(QStringLiteral("Halvane"));
    setFixedSize(NoticeSize);
    LayTexts();
    CentreWindow(this);
    show();
    WaitUntilPainted();
}

void UpdateNotice::LayTexts() {
    const QString title = QStringLiteral("Halvane updates your files");
    setAccessibleName(title);
    LayCentred(MakeLabel(this, QStringLiteral("lblTitle"), title, TextRole::CardTitle), TitleTop);
    LayCentred(MakeLabel(this, QStringLiteral("lblOnce"),
                         QStringLiteral("This is needed once and can take some seconds.")),
               LineTop);
}

void UpdateNotice::WaitUntilPainted() {
    QEventLoop loop;
    connect(this, &UpdateNotice::Painted, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    QTimer::singleShot(LongestWait, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void UpdateNotice::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), TheStyle().canvas);
    PaintFrame(painter, rect(), TheStyle().frame);
    Q_EMIT Painted();
}
