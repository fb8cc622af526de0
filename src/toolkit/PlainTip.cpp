#include "toolkit/PlainTip.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace {

constexpr int LongestTip = 500; // characters
constexpr int WidestLine = 300; // pixels

/// A text with markup is broken into lines of about the same length, even if it is short.
bool FitsOnALine(const QString& text) {
    return QFontMetrics(QToolTip::font()).horizontalAdvance(text) <= WidestLine;
}

QString Escaped(const QString& text) {
    const QString rich = Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
    return FitsOnALine(text) ? QStringLiteral("<div style='white-space:nowrap'>%1</div>").arg(rich)
                             : rich;
}

} // namespace

void ShowPlainTip(const QPoint& globalPlace, const QString& text, QWidget* control) {
    if (text.isEmpty())
        return QToolTip::hideText();
    QToolTip::showText(globalPlace, Escaped(text.left(LongestTip)), control);
}

void ShowPlainTip(QHelpEvent& asked, const QString& text, QWidget* control) {
    ShowPlainTip(asked.globalPos(), text, control);
    asked.setAccepted(!text.isEmpty());
}
