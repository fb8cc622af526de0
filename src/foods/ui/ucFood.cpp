#include "foods/ui/ucFood.h"

#include "drawing/DevicePixels.h"
#include "drawing/Pictures.h"
#include "drawing/Style.h"
#include "foods/ui/ElidedLabel.h"
#include "foods/ui/ServingLine.h"
#include "runtime/Convert.h"
#include "store/Schema.h"
#include "toolkit/Labels.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {
const QString FoodPicture = QStringLiteral("food");
const QString CustomPicture = QStringLiteral("custom-food");
const QString RecipePicture = QStringLiteral("recipe");
const QString QuantityCaption = QStringLiteral("QTY");

bool FromKeyboard(const QFocusEvent* event) {
    return event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
}
} // namespace

ucFood::ucFood(QWidget* parent)
    : ListRow(parent)
    , foodName_(QStringLiteral("FoodName"))
    , servA_(QStringLiteral("ServA"))
    , servB_(QStringLiteral("ServB"))
    , id_(QStringLiteral("1")) {
    SetFoodIcon(FoodPicture);
    setFocusPolicy(Qt::TabFocus);
    resize(width(), layoutRects().height);
}

void ucFood::SetFoodName(const QString& name) {
    Take(foodName_, name);
}

void ucFood::SetServA(const QString& serving) {
    Take(servA_, serving);
}

void ucFood::SetServB(const QString& serving) {
    const FoodRowLayout layout = layoutRects();
    resize(width(), serving.isEmpty() ? layout.lines[1].txtQTY.top() : layout.height);
    Take(servB_, serving);
}

void ucFood::SetID(const QString& id) {
    Take(id_, id);
    ShowSource();
}

void ucFood::SetIsRecipe(bool recipe) {
    isRecipe_ = recipe;
    ShowSource();
}

void ucFood::ShowSource() {
    if (isRecipe_)
        SetFoodIcon(RecipePicture);
    else
        SetFoodIcon(id_.toInt() > Schema::LastStockFood ? CustomPicture : FoodPicture);
}

QString ucFood::SourceName() const {
    if (isRecipe_)
        return QStringLiteral("recipe");
    return FoodIcon() == CustomPicture ? QStringLiteral("custom food")
                                       : QStringLiteral("standard food");
}

QString ucFood::Caption() const {
    QStringList parts{foodName_, SourceName(), servA_, servB_};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

void ucFood::SetRecipeMode(bool on) {
    recipeMode_ = on;
}

QFont ucFood::NameFont() const {
    QFont name = font();
    name.setWeight(QFont::DemiBold);
    return name;
}

void ucFood::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintGround(painter);
    if (!Materialised())
        PaintTexts(painter);
}

void ucFood::PaintGround(QPainter& painter) const {
    if (BackStyle() == 1)
        painter.fillRect(rect(), BackColor());
    if (BorderStyle() == 1)
        PaintFrame(painter, rect(), TheStyle().rule);
    else
        PaintEdge(painter, rect(), Qt::BottomEdge, TheStyle().rule);
}

void ucFood::PaintTexts(QPainter& painter) const {
    const Style& style = TheStyle();
    const FoodRowLayout layout = layoutRects();
    Pictures::Paint(painter, layout.imgFoodIcon, FoodIcon(), style.heading);
    ElidedLabel::Print(painter, layout.aaFood, foodName_, NameFont(), ForeColor());
    ElidedLabel::Print(painter, layout.lblQTY, QuantityCaption, style.small, style.quietInk);
    ElidedLabel::Print(painter, layout.lines[0].lblServ, servA_, font(), style.quietInk);
    if (!servB_.isEmpty())
        ElidedLabel::Print(painter, layout.lines[1].lblServ, servB_, font(), style.quietInk);
}

void ucFood::Materialise() {
    if (Materialised())
        return;
    BuildHeading();
    BuildLine(ServingLine::A);
    BuildLine(ServingLine::B);
    Refresh();
    JoinTabOrder();
}

void ucFood::BuildHeading() {
    aaFood_ = new ElidedLabel(this, QStringLiteral("aaFood"));
    lblQTY_ = new ElidedLabel(this, QStringLiteral("lblQTY"));
    lblQTY_->SetCaption(QuantityCaption);
    lblQTY_->SetLook({TheStyle().small}, TheStyle().quietInk);
    imgFoodIcon_ = MakeLabel(this, QStringLiteral("imgFoodIcon"), {});
    lblID_ = MakeLabel(this, QStringLiteral("lblID"), {});
    lblID_->hide();
    for (QLabel* label :
         {static_cast<QLabel*>(aaFood_), static_cast<QLabel*>(lblQTY_), imgFoodIcon_})
        label->show();
}

void ucFood::BuildLine(int line) {
    auto* built = new ServingLine(this, static_cast<ServingLine::Letter>(line));
    lines_[size_t(line)] = built;
    connect(built, &ServingLine::Eat, this, [this, line] { Raise(&ucFood::EatFood, line); });
    connect(built, &ServingLine::Examine, this,
            [this, line] { Raise(&ucFood::ExamineFood, line); });
    connect(built, &ServingLine::MouseMove, this, &ucFood::MouseMove);
    for (QWidget* control : built->Controls())
        control->installEventFilter(this);
}

/// The controls replace the row in the tab order.
void ucFood::JoinTabOrder() {
    QWidget* last = this;
    for (const ServingLine* line : lines_)
        for (QWidget* control : line->Controls()) {
            setTabOrder(last, control);
            last = control;
        }
    setFocusPolicy(Qt::NoFocus);
}

void ucFood::Refresh() {
    if (Materialised()) {
        const FoodRowLayout layout = layoutRects();
        RefreshHeading(layout);
        for (size_t line = 0; line < lines_.size(); ++line) {
            const QString& serving = line == ServingLine::A ? servA_ : servB_;
            lines_[line]->SetPlace(layout.lines[line]);
            lines_[line]->SetTexts(foodName_, serving);
            lines_[line]->SetFont(font());
            lines_[line]->SetVisible(line == ServingLine::A || !serving.isEmpty());
        }
    }
    update();
}

void ucFood::RefreshHeading(const FoodRowLayout& layout) {
    aaFood_->setGeometry(layout.aaFood);
    aaFood_->SetCaption(foodName_);
    aaFood_->setToolTip(foodName_);
    aaFood_->SetLook({NameFont()}, ForeColor());
    lblQTY_->setGeometry(layout.lblQTY);
    imgFoodIcon_->setGeometry(layout.imgFoodIcon);
    imgFoodIcon_->setAccessibleName(SourceName());
    imgFoodIcon_->setPixmap(Pictures::Get(FoodIcon(), layout.imgFoodIcon.size(), TheStyle().heading,
                                          devicePixelRatioF()));
    lblID_->setText(id_);
}

void ucFood::Raise(Handler raised, int line) {
    const QString letter = line == ServingLine::A ? QStringLiteral("A") : QStringLiteral("B");
    (this->*raised)(ToInteger(id_), letter, lines_[size_t(line)]->Quantity(), isRecipe_);
}

void ucFood::ResetButtons(const QObject* except) {
    if (Materialised())
        for (ServingLine* line : lines_)
            line->ResetButtons(except);
}

bool ucFood::eventFilter(QObject* control, QEvent* event) {
    if (event->type() == QEvent::FocusIn && FromKeyboard(static_cast<QFocusEvent*>(event)))
        Q_EMIT Reached();
    return ListRow::eventFilter(control, event);
}

void ucFood::focusInEvent(QFocusEvent* event) {
    Materialise();
    const ServingLine* entered = lines_[ServingLine::A];
    if (event->reason() != Qt::BacktabFocusReason)
        return entered->Controls().first()->setFocus(event->reason());
    if (!servB_.isEmpty())
        entered = lines_[ServingLine::B];
    entered->Controls().last()->setFocus(event->reason());
}

void ucFood::FocusQuantity() {
    Materialise();
    lines_[ServingLine::A]->Controls().first()->setFocus(Qt::TabFocusReason);
}

void ucFood::changeEvent(QEvent* event) {
    ListRow::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::EnabledChange)
        Refresh();
}

void ucFood::resizeEvent(QResizeEvent* event) {
    ListRow::resizeEvent(event);
    Refresh();
}

void ucFood::mouseMoveEvent(QMouseEvent* event) {
    ResetButtons();
    RaiseMouseMove(event);
}

/// The pane below gets the press, too.
void ucFood::mousePressEvent(QMouseEvent* event) {
    BeginClick(event);
    event->ignore();
}

void ucFood::mouseReleaseEvent(QMouseEvent* event) {
    if (EndsClick(event))
        Q_EMIT Click();
}

void ucFood::mouseDoubleClickEvent(QMouseEvent*) {
    Q_EMIT DblClick();
}
