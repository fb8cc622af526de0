#include "toolkit/ScreenForm.h"

#include "drawing/Style.h"
#include "toolkit/CleanUp.h"
#include "toolkit/SpokenRole.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucButton.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

// Measures in pixels.
constexpr int BoxesTop = 42;
constexpr int BoxesBottom = 44; // from the lower edge
constexpr int TitleLineTop = 11;
constexpr int TitleLineHeight = 24;

} // namespace

ScreenForm::ScreenForm(const ScreenRow& row, QWidget* parent)
    : ScreenForm(QString::fromLatin1(row.name), QString::fromLatin1(row.title), parent) {}

ScreenForm::ScreenForm(const QString& name, const QString& title, QWidget* parent)
    : QWidget(parent)
    , title_(title) {
    SetSpokenRole(this, QAccessible::Pane);
    setObjectName(name);
    setWindowTitle(title);
    setAccessibleName(title);
    setMouseTracking(true);
    AddCleanUp(this, [this] { AllOff(QString()); });
}

ucButton* ScreenForm::AddButton(const char* name, const char* caption,
                                std::function<void()> pressed, const char* hoverName) {
    auto* button = new ucButton(QString::fromLatin1(caption), this);
    button->setObjectName(QString::fromLatin1(name));
    connect(button, &ucButton::Click, this, std::move(pressed));
    const QString hovered = QString::fromLatin1(hoverName ? hoverName : name);
    connect(button, &ucButton::MouseMove, this, [this, hovered] { AllOff(hovered); });
    buttons_ << button;
    return button;
}

ucBox* ScreenForm::AddBox(const char* name, const char* caption, QWidget* contents) {
    auto* box = new ucBox(QString::fromLatin1(caption), this);
    box->setObjectName(QString::fromLatin1(name));
    contents->setParent(box);
    connect(box, &ucBox::InnerChanged, contents,
            [box, contents] { contents->setGeometry(box->Inner()); });
    connect(box, &ucBox::MouseMove, this, [this] { AllOff(QString()); });
    return box;
}

QRect ScreenForm::BoxesPlace() const {
    const int edge = TheStyle().nestEdge;
    return rect().adjusted(edge, BoxesTop, -edge, -BoxesBottom);
}

int ScreenForm::PlaceInTitleLine(QWidget* control, int left) {
    control->move(left, TitleLineTop + (TitleLineHeight - control->height()) / 2);
    return left + control->width();
}

void ScreenForm::PlaceInRow(int left, std::initializer_list<ucButton*> buttons) {
    const int gap = TheStyle().boxGap;
    for (ucButton* button : buttons) {
        button->move(left, height() - BoxesBottom + gap);
        left += button->width() + gap;
    }
}

void ScreenForm::PlaceAtEnd(ucButton* button) {
    PlaceInRow(BoxesPlace().right() + 1 - button->width(), {button});
}

void ScreenForm::AllOff(const QString& except) {
    for (ucButton* button : std::as_const(buttons_))
        if (button->objectName().compare(except, Qt::CaseInsensitive) != 0)
            button->Reset();
}

void ScreenForm::mouseMoveEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    if (place == lastMouse_)
        return;
    lastMouse_ = place;
    AllOff(QString());
}

void ScreenForm::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), TheStyle().canvas);
}
