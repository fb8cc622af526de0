#include "gallery/Specimens.h"

#include "drawing/Pictures.h"
#include "drawing/Style.h"
#include "toolkit/Labels.h"
#include "toolkit/ListBox.h"
#include "toolkit/ScrollPane.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucCalButton.h"
#include "toolkit/ucDropDown.h"
#include "toolkit/ucHeader.h"
#include "toolkit/ucRadio.h"
#include "toolkit/ucScroll.h"
#include "toolkit/ucStrip.h"
#include "toolkit/ucTextRaised.h"
#include "toolkit/ucTitleBar.h"
#include "toolkit/ucTitleFlat.h"

#include <QApplication>
#include <QCheckBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollBar>

namespace {

using Maker = std::function<QWidget*(QWidget*)>;
using Change = std::function<void(QWidget*)>;

void SendMouse(QWidget* control, QEvent::Type type, QPointF at, Qt::MouseButton button) {
    QMouseEvent event(type, at, control->mapToGlobal(at), button, button, Qt::NoModifier);
    QApplication::sendEvent(control, &event);
}

QPointF Middle(const QWidget* control) {
    return QRectF(control->rect()).center();
}

void Rest(QWidget*) {}

void PointOver(QWidget* control) {
    SendMouse(control, QEvent::MouseMove, Middle(control), Qt::NoButton);
}

void Press(QWidget* control) {
    SendMouse(control, QEvent::MouseButtonPress, Middle(control), Qt::LeftButton);
}

void Focus(QWidget* control) {
    QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(control, &focus);
}

void Disable(QWidget* control) {
    control->setEnabled(false);
}

struct StateRow {
    const char* state;
    Change apply;
};

const StateRow atRest{"at rest", Rest};
const StateRow over{"pointer over", PointOver};
const StateRow pressed{"pressed", Press};
const StateRow focused{"focus", Focus};
const StateRow disabled{"disabled", Disable};

void AddStates(QList<Specimen>& list, const char* control, const Maker& make,
               const QList<StateRow>& rows, bool tabStop) {
    for (const StateRow& row : rows)
        list << Specimen{QLatin1String(control), QLatin1String(row.state), make, row.apply,
                         tabStop && !QLatin1String(row.state).contains(QLatin1String("disabled"))};
}

template <class Kind> Change With(void (*change)(Kind*)) {
    return [change](QWidget* control) { change(static_cast<Kind*>(control)); };
}

QWidget* MakeTrash(QWidget* parent) {
    auto* trash = new ucButtonA(parent);
    trash->SetPictures(QStringLiteral("trash"), QStringLiteral("Remove this food"));
    return trash;
}

QWidget* MakeViewButton(QWidget* parent) {
    auto* view = new ucButtonA(parent);
    view->SetPictureSize({16, 16});
    view->SetBordered(true);
    view->SetPictures(QStringLiteral("bars"), QStringLiteral("Bar chart of percent RDI"));
    return view;
}

QWidget* MakeNavigation(QWidget* parent) {
    auto* column = new QWidget(parent);
    column->setAutoFillBackground(true);
    QPalette ground = column->palette();
    ground.setColor(QPalette::Window, TheStyle().navigation);
    column->setPalette(ground);
    auto* tile = new ucButtonA(column);
    tile->SetPictures(QStringLiteral("daily"), QStringLiteral("Daily Details"));
    tile->SetCaptionBelow(QStringLiteral("Daily"));
    column->resize(tile->size());
    column->setAccessibleName(tile->accessibleName());
    return column;
}

Change OnTile(const Change& apply) {
    return [apply](QWidget* column) { apply(column->findChild<ucButtonA*>()); };
}

void AddButtons(QList<Specimen>& list) {
    const QList<StateRow> all{atRest, over, pressed, focused, disabled};
    AddStates(
        list, "ucButton", [](QWidget* p) { return new ucButton(QStringLiteral("Clear foods"), p); },
        all, true);
    AddStates(
        list, "ucButton, main action",
        [](QWidget* p) {
            auto* button = new ucButton(QStringLiteral("Eat foods"), p);
            button->SetMainAction(true);
            return button;
        },
        all, true);
    AddStates(
        list, "ucCalButton",
        [](QWidget* p) {
            auto* button = new ucCalButton(p);
            button->SetCaption(QStringLiteral("November"));
            button->resize(button->sizeHint());
            return button;
        },
        {atRest, over, pressed, focused}, true);
}

void AddPictureButtons(QList<Specimen>& list) {
    const QList<StateRow> all{atRest, over, pressed, focused, disabled};
    AddStates(list, "ucButtonA", MakeTrash, all, true);
    const auto choose = With<ucButtonA>([](ucButtonA* button) { button->SetChosen(true); });
    AddStates(list, "ucButtonA, bordered", MakeViewButton,
              all + QList<StateRow>{{"chosen", choose}}, true);
    AddStates(list, "ucButtonA, caption below", MakeNavigation,
              {{"at rest", Rest},
               {"pointer over", OnTile(PointOver)},
               {"pressed", OnTile(Press)},
               {"focus", OnTile(Focus)},
               {"disabled", OnTile(Disable)},
               {"chosen", OnTile(choose)}},
              false);
}

void AddRadios(QList<Specimen>& list) {
    const auto turnOn = With<ucRadio>([](ucRadio* radio) { radio->SetValue(true); });
    const auto offDisabled = With<ucRadio>([](ucRadio* radio) {
        radio->SetValue(true);
        radio->setEnabled(false);
    });
    const QList<StateRow> all{atRest,         over,     focused,
                              {"on", turnOn}, disabled, {"on, disabled", offDisabled}};
    AddStates(
        list, "ucRadio", [](QWidget* p) { return new ucRadio(QStringLiteral("Breakfast"), p); },
        all, true);
    AddStates(
        list, "ucRadioB", [](QWidget* p) { return new ucRadioB(QStringLiteral("Recipes"), p); },
        all, true);
}

QWidget* MakeBar(QWidget* parent) {
    auto* bar = new ucScroll(parent);
    bar->setAccessibleName(QStringLiteral("Scroll"));
    bar->resize(bar->sizeHint().width(), 150);
    bar->SetMin(0);
    bar->SetMax(100);
    bar->SetValue(0);
    return bar;
}

Change OnBar(QEvent::Type type, QRect ucScroll::Layout::*part, Qt::MouseButton button) {
    return [=](QWidget* control) {
        const QRect place = static_cast<ucScroll*>(control)->layoutRects().*part;
        SendMouse(control, type, QRectF(place).center(), button);
    };
}

void AddScrollBar(QList<Specimen>& list) {
    using Layout = ucScroll::Layout;
    constexpr auto move = QEvent::MouseMove;
    constexpr auto press = QEvent::MouseButtonPress;
    const auto half = With<ucScroll>([](ucScroll* bar) { bar->SetValue(50); });
    const auto end = With<ucScroll>([](ucScroll* bar) { bar->SetValue(100); });
    AddStates(list, "ucScroll", MakeBar,
              {{"top", Rest},
               {"middle", half},
               {"end", end},
               {"pointer over the thumb", OnBar(move, &Layout::picTB, Qt::NoButton)},
               {"thumb held", OnBar(press, &Layout::picTB, Qt::LeftButton)},
               {"pointer over an arrow", OnBar(move, &Layout::imgDown, Qt::NoButton)},
               {"arrow held", OnBar(press, &Layout::imgDown, Qt::LeftButton)},
               {"focus", Focus}},
              true);
}

QWidget* MakeList(QWidget* parent) {
    auto* list = new ucDropDown(parent);
    list->setAccessibleName(QStringLiteral("Year"));
    for (int year = 1992; year <= 2012; ++year)
        list->AddItem(QString::number(year), year);
    list->Set_aHEIGHT(1600);
    list->SetIndex(1);
    return list;
}

/// A place with room for the open list.
QWidget* MakeRoomForList(QWidget* parent) {
    auto* room = new QWidget(parent);
    room->setAccessibleName(QStringLiteral("Year"));
    const ucDropDown* list = static_cast<ucDropDown*>(MakeList(room));
    room->resize(list->width(), list->height() + 110);
    return room;
}

Change OnOpenList(const Change& apply) {
    return [apply](QWidget* room) {
        auto* list = room->findChild<ucDropDown*>();
        list->Activate();
        apply(list);
    };
}

void AddDropDown(QList<Specimen>& list) {
    const auto onArrow = [](QEvent::Type type, Qt::MouseButton button) {
        return Change([=](QWidget* control) {
            const QRect arrow = static_cast<ucDropDown*>(control)->layoutRects().imgArrow;
            SendMouse(control, type, QRectF(arrow).center(), button);
        });
    };
    AddStates(list, "ucDropDown", MakeList,
              {atRest,
               {"pointer over the arrow", onArrow(QEvent::MouseMove, Qt::NoButton)},
               {"arrow held", onArrow(QEvent::MouseButtonPress, Qt::LeftButton)},
               focused,
               disabled},
              true);
    const Change lit = [](QWidget* control) {
        PointOver(control->findChild<QWidget*>(QStringLiteral("lblItem3")));
    };
    const Change scrolled = [](QWidget* control) {
        control->findChild<QScrollBar*>(QStringLiteral("vsResults"))->setValue(2000);
    };
    AddStates(list, "ucDropDown, open", MakeRoomForList,
              {{"open", OnOpenList(Rest)},
               {"pointer over an item", OnOpenList(lit)},
               {"scrolled", OnOpenList(scrolled)}},
              false);
}

template <class Panel> Maker Captioned(const char* caption, QSize size) {
    return [=](QWidget* parent) {
        auto* panel = new Panel(parent);
        panel->SetCaption(QString::fromUtf8(caption));
        panel->resize(size);
        return panel;
    };
}

void AddPanels(QList<Specimen>& list) {
    const auto centred = With<ucHeader>([](ucHeader* header) { header->SetCenterAlignText(true); });
    const auto atLeft = With<ucHeader>([](ucHeader* header) { header->SetCenterAlignText(false); });
    AddStates(list, "ucHeader", Captioned<ucHeader>("Percent RDI", {220, 24}),
              {{"centred", centred}, {"left", atLeft}}, false);
    AddStates(list, "ucStrip", Captioned<ucStrip>(" Percent RDI", {220, 24}), {atRest}, false);
    AddStates(list, "ucTitleBar", Captioned<ucTitleBar>("Halvane", {320, 34}), {atRest}, false);
    AddStates(list, "ucTitleFlat", Captioned<ucTitleFlat>("Eat foods", {320, 34}), {atRest}, false);
    const auto backed = With<ucTextRaised>([](ucTextRaised* text) {
        QPixmap slate(text->size());
        slate.fill(TheStyle().navigation);
        text->SetPicture(slate);
    });
    AddStates(list, "ucTextRaised", Captioned<ucTextRaised>("Halvane", {180, 44}),
              {{"plain", Rest}, {"on a picture", backed}}, false);
    AddStates(list, "ucBox", Captioned<ucBox>("Tip of the day", {220, 90}),
              {atRest, {"without header", With<ucBox>([](ucBox* box) { box->SetCaption({}); })}},
              false);
}

void AddLabels(QList<Specimen>& list) {
    struct RoleRow {
        TextRole role;
        const char* text;
    };
    static const RoleRow rows[] = {
        {TextRole::Text, "Oats, regular, cooked"}, {TextRole::Quiet, "1 cup (x 1)"},
        {TextRole::Strong, "4 servings"},          {TextRole::Small, "Polyunsaturated Fat"},
        {TextRole::ScreenTitle, "Daily Details"},  {TextRole::CardTitle, "Lentil soup"}};
    for (const RoleRow& row : rows)
        list << Specimen{QStringLiteral("label"), QLatin1String(row.text),
                         [row](QWidget* parent) {
                             return MakeLabel(parent, QString(), QLatin1String(row.text), row.role);
                         },
                         Rest, false};
    const auto label = Captioned<ucAALBL>("Fat 34%", {60, 17});
    const auto grounded =
        With<ucAALBL>([](ucAALBL* smoothed) { smoothed->SetBackColor(TheStyle().chosenDay.to); });
    AddStates(list, "ucAALBL", label, {atRest, {"ground", grounded}, disabled}, false);
}

QWidget* MakeField(QWidget* parent) {
    auto* field = new QLineEdit(QStringLiteral("168.5"), parent);
    field->setAccessibleName(QStringLiteral("Weight"));
    field->resize(90, TheStyle().fieldHeight);
    return field;
}

void AddFields(QList<Specimen>& list) {
    const Change focus = [](QWidget* control) { control->setFocus(Qt::TabFocusReason); };
    AddStates(list, "QLineEdit", MakeField, {atRest, {"focus", focus}, disabled}, true);
    const auto check = With<QCheckBox>([](QCheckBox* box) { box->setChecked(true); });
    AddStates(
        list, "QCheckBox",
        [](QWidget* p) { return new QCheckBox(QStringLiteral("Standard foods"), p); },
        {atRest, {"checked", check}, {"focus", focus}, disabled}, true);
    AddStates(
        list, "QPlainTextEdit",
        [](QWidget* p) {
            auto* edit = new QPlainTextEdit(QStringLiteral("Rinse the lentils."), p);
            edit->setAccessibleName(QStringLiteral("Preparation"));
            edit->resize(220, 70);
            return edit;
        },
        {atRest, {"focus", focus}, disabled}, true);
}

void AddScrollPane(QList<Specimen>& list) {
    const auto overflow = With<ScrollPane>([](ScrollPane* pane) {
        pane->SetPaneHeight(400);
        pane->ShowBar();
        pane->vsResultsPane()->SetValue(90);
    });
    AddStates(
        list, "ScrollPane",
        [](QWidget* parent) {
            auto* pane = new ScrollPane(parent);
            pane->setAccessibleName(QStringLiteral("Foods"));
            pane->resize(220, 120);
            for (int row = 0; row < 15; ++row)
                MakeLabel(pane->picResultsPane(), QString(), "Row " + QString::number(row + 1))
                    ->move(8, 6 + TheStyle().rowHeight * row);
            pane->ResetPane();
            return pane;
        },
        {{"fits", Rest}, {"overflows", overflow}}, false);
}

void AddListBox(QList<Specimen>& list) {
    const auto choose = With<ListBox>([](ListBox* box) { box->SetListIndex(1); });
    const auto chooseDisabled = With<ListBox>([](ListBox* box) {
        box->SetListIndex(1);
        box->setEnabled(false);
    });
    const Change focus = [](QWidget* control) { control->setFocus(Qt::TabFocusReason); };
    AddStates(
        list, "ListBox",
        [](QWidget* parent) {
            auto* box = new ListBox(parent);
            box->setAccessibleName(QStringLiteral("Recipe List"));
            box->resize(220, 120);
            for (const char* text : {"Oat pancakes", "Lentil soup", "Chicken with lemon",
                                     "Bean salad with a dressing of mustard and honey",
                                     "Sunday granola", "Tomato rice"})
                box->AddItem(QString::fromLatin1(text), 1);
            return box;
        },
        {atRest,
         {"chosen", choose},
         {"focus", focus},
         disabled,
         {"chosen, disabled", chooseDisabled}},
        true);
}

} // namespace

QList<Specimen> Specimens() {
    QList<Specimen> list;
    AddButtons(list);
    AddPictureButtons(list);
    AddRadios(list);
    AddScrollBar(list);
    AddDropDown(list);
    AddPanels(list);
    AddLabels(list);
    AddFields(list);
    AddScrollPane(list);
    AddListBox(list);
    return list;
}
