#include "toolkit/ButtonRow.h"

#include "drawing/Style.h"
#include "toolkit/Dialog.h"
#include "toolkit/ucButton.h"

ucButton* MakeButton(Dialog* dialog, const QString& name, const QString& caption) {
    auto* button = new ucButton(caption, dialog);
    button->setObjectName(name);
    QObject::connect(button, &ucButton::MouseMove, dialog,
                     [dialog, name] { dialog->AllOff(name); });
    return button;
}

QRect LayButtonRow(const QRect& inner, const QList<ucButton*>& buttons) {
    const Style& style = TheStyle();
    const int top = inner.bottom() + 1 - style.nestEdge - style.buttonHeight;
    int right = inner.right() + 1 - style.nestEdge;
    for (auto button = buttons.crbegin(); button != buttons.crend(); ++button) {
        (*button)->move(right - (*button)->width(), top);
        right -= (*button)->width() + style.boxGap;
    }
    const QRect above(inner.topLeft(), QPoint(inner.right(), top - 1));
    return above.adjusted(style.nestEdge, style.nestEdge, -style.nestEdge, -style.boxGap);
}
