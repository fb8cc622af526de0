#include "intake/ui/ListNotice.h"

#include "drawing/Style.h"
#include "toolkit/Accessible.h"

#include <QPainter>
#include <QTimer>

static constexpr int NoticeTime = 8000; // milliseconds
static constexpr int Margin = 6;

ListNotice::ListNotice(QWidget* list)
    : QLabel(list)
    , tmrHider_(new QTimer(this)) {
    setObjectName(QStringLiteral("lblStatus"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setMargin(Margin);
    setFont(TheStyle().text);
    setForegroundRole(QPalette::HighlightedText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    tmrHider_->setSingleShot(true);
    tmrHider_->setInterval(NoticeTime);
    connect(tmrHider_, &QTimer::timeout, this, &QWidget::hide);
    hide();
}

void ListNotice::Say(const QString& text) {
    setText(text);
    const QRect list = parentWidget()->rect();
    const int height = heightForWidth(list.width());
    setGeometry(0, list.height() - height, list.width(), height);
    show();
    raise();
    tmrHider_->start();
    TellAloud(this);
}

void ListNotice::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(rect(), TheStyle().chosenRow);
    QLabel::paintEvent(event);
}

void ListNotice::hideEvent(QHideEvent* event) {
    QLabel::hideEvent(event);
    tmrHider_->stop();
}
