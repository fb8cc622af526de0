#include "toolkit/PlainTip.h"

#include <QTextDocument>
#include <QToolTip>

static constexpr int longestTip = 500; // characters

void ShowPlainTip(const QPoint& globalPlace, const QString& text, QWidget* control) {
    if (text.isEmpty())
        return QToolTip::hideText();
    QToolTip::showText(globalPlace,
                       Qt::convertFromPlainText(text.left(longestTip), Qt::WhiteSpaceNormal),
                       control);
}
