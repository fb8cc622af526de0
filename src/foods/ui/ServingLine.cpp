#include "foods/ui/ServingLine.h"

#include "drawing/Style.h"
#include "foods/ui/ElidedLabel.h"
#include "runtime/Convert.h"
#include "toolkit/LineField.h"
#include "toolkit/ucButtonA.h"

namespace {
struct Names {
    const char *lblServ, *txtQTY, *cmdEAT, *imgInfo_W;
};
constexpr Names NamesByLetter[] = {
    {"lblServA", "txtQTY_A", "cmdEAT_a", "imgInfo_W_A"},
    {"lblServB", "txtQTY_B", "cmdEAT_B", "imgInfo_W_B"},
};
} // namespace

ServingLine::ServingLine(QWidget* row, Letter letter)
    : QObject(row) {
    const Names& name = NamesByLetter[letter];
    lblServ_ = new ElidedLabel(row, QString::fromLatin1(name.lblServ));
    lblServ_->setCursor(Qt::PointingHandCursor);
    BuildQuantity(row, QString::fromLatin1(name.txtQTY));
    cmdEAT_ = BuildButton(row, QString::fromLatin1(name.cmdEAT), QStringLiteral("add"),
                          QStringLiteral("Click to add this food"));
    imgInfo_W_ = BuildButton(row, QString::fromLatin1(name.imgInfo_W), QStringLiteral("examine"),
                             QStringLiteral("Examine Food"));
    connect(lblServ_, &ElidedLabel::Click, this, &ServingLine::Eat);
    connect(txtQTY_, &QLineEdit::returnPressed, this, &ServingLine::Eat);
    connect(cmdEAT_, &ucButtonA::Click, this, &ServingLine::Eat);
    connect(imgInfo_W_, &ucButtonA::Click, this, &ServingLine::Examine);
}

void ServingLine::BuildQuantity(QWidget* row, const QString& name) {
    txtQTY_ = new LineField(QStringLiteral("1"), row);
    txtQTY_->setObjectName(name);
    txtQTY_->setToolTip(QStringLiteral("Enter a quantity"));
    txtQTY_->setAlignment(Qt::AlignRight);
}

ucButtonA* ServingLine::BuildButton(QWidget* row, const QString& name, const QString& picture,
                                    const QString& tip) {
    auto* button = new ucButtonA(row);
    button->setObjectName(name);
    button->SetPictures(picture, tip);
    connect(button, &ucButtonA::MouseMove, this, [=, this](int b, int shift, double x, double y) {
        ResetButtons(button);
        Q_EMIT MouseMove(b, shift, x, y);
    });
    return button;
}

void ServingLine::SetPlace(const FoodRowLayout::Line& place) {
    lblServ_->setGeometry(place.lblServ);
    txtQTY_->setGeometry(place.txtQTY);
    cmdEAT_->setGeometry(place.cmdEAT);
    imgInfo_W_->setGeometry(place.imgInfo_W);
}

void ServingLine::SetVisible(bool visible) {
    lblServ_->setVisible(visible);
    for (QWidget* control : Controls())
        control->setVisible(visible);
}

void ServingLine::SetTexts(const QString& food, const QString& serving) {
    const QString what = food + u", " + serving;
    lblServ_->SetCaption(serving);
    lblServ_->setToolTip(serving);
    txtQTY_->setAccessibleName(u"Quantity of " + what);
    cmdEAT_->setAccessibleName(u"Add " + what);
    imgInfo_W_->setAccessibleName(u"Examine " + what);
}

void ServingLine::SetFont(const QFont& font) {
    lblServ_->SetLook({font}, TheStyle().quietInk);
}

double ServingLine::Quantity() const {
    return NumberOrZero(txtQTY_->text());
}

void ServingLine::ResetButtons(const QObject* except) {
    for (ucButtonA* button : {cmdEAT_, imgInfo_W_})
        if (button != except)
            button->Reset();
}

QList<QWidget*> ServingLine::Controls() const {
    return {txtQTY_, cmdEAT_, imgInfo_W_};
}
