#include "toolkit/PlainTip.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

static constexpr int LongestTip = 500; // characters

void ShowPlainTip(const QPoint& globalPlace, const QString& text, QWidget* control) {
    if (text.isEmpty())
        return QToolTip::hideText();
    QToolTip::showText(globalPlace,
                       Qt::convertFromPlainText(text.left(LongestTip), Qt::WhiteSpaceNormal),
                       control);
}

void ShowPlainTip(QHelpEvent& asked, const QString& text, QWidget* control) {
    ShowPlainTip(asked.globalPos(), text, control);
    asked.setAccepted(!text.isEmpty());
}
