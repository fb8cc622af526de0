#include "toolkit/Accessible.h"

#include "toolkit/ucButtonA.h"
#include "toolkit/ucDropDown.h"
#include "toolkit/ucRadio.h"
#include "toolkit/ucScroll.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>

namespace {

QString CaptionOf(const QObject* control) {
    return control->property("Caption").toString().trimmed();
}

/// Name from `accessibleName`, else the caption, else the tip; a press through Activate.
class ControlInterface : public QAccessibleWidget {
public:
    explicit ControlInterface(DrawnControl* control)
        : QAccessibleWidget(control, control->AccessibleRole()) {}

    QString text(QAccessible::Text kind) const override {
        QString own = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !own.isEmpty())
            return own;
        const QString caption = CaptionOf(object());
        return caption.isEmpty() ? widget()->toolTip() : caption;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (Presses())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override {
        if (name == pressAction() && widget()->isEnabled() && Presses())
            static_cast<DrawnControl*>(object())->Activate();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    bool Presses() const {
        static constexpr QAccessible::Role pressed[] = {
            QAccessible::Button,   QAccessible::RadioButton, QAccessible::ComboBox,
            QAccessible::ListItem, QAccessible::ButtonMenu,  QAccessible::MenuItem};
        return std::find(std::begin(pressed), std::end(pressed), role()) != std::end(pressed);
    }
};

class RadioInterface : public ControlInterface {
public:
    using ControlInterface::ControlInterface;

    QAccessible::State state() const override {
        QAccessible::State state = ControlInterface::state();
        state.checkable = true;
        state.checked = static_cast<ucRadio*>(object())->Value();
        return state;
    }
};

class ViewButtonInterface : public ControlInterface {
public:
    using ControlInterface::ControlInterface;

    QAccessible::State state() const override {
        QAccessible::State state = ControlInterface::state();
        state.pressed = static_cast<ucButtonA*>(object())->Chosen();
        return state;
    }
};

/// Opened, it offers its items as children that can be pressed.
class ListInterface : public ControlInterface {
public:
    using ControlInterface::ControlInterface;

    QAccessible::State state() const override {
        QAccessible::State state = ControlInterface::state();
        state.expandable = true;
        state.expanded = List()->IsOpen();
        state.collapsed = !state.expanded;
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? List()->Text().trimmed() : ControlInterface::text(kind);
    }

private:
    ucDropDown* List() const { return static_cast<ucDropDown*>(object()); }
};

class ScrollInterface : public ControlInterface, public QAccessibleValueInterface {
public:
    using ControlInterface::ControlInterface;

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return ControlInterface::interface_cast(type);
    }
    QVariant currentValue() const override { return Bar()->Value(); }
    void setCurrentValue(const QVariant& value) override { Bar()->SetValue(value.toInt()); }
    QVariant maximumValue() const override { return Bar()->Max(); }
    QVariant minimumValue() const override { return Bar()->Min(); }
    QVariant minimumStepSize() const override { return Bar()->SmallChange(); }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? QString::number(Bar()->Value())
                                          : ControlInterface::text(kind);
    }

private:
    ucScroll* Bar() const { return static_cast<ucScroll*>(object()); }
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* control = qobject_cast<DrawnControl*>(object);
    if (!control)
        return nullptr;
    if (qobject_cast<ucScroll*>(control))
        return new ScrollInterface(control);
    if (qobject_cast<ucDropDown*>(control))
        return new ListInterface(control);
    if (qobject_cast<ucRadio*>(control))
        return new RadioInterface(control);
    if (qobject_cast<ucButtonA*>(control))
        return new ViewButtonInterface(control);
    return new ControlInterface(control);
}

} // namespace

void InstallAccessible() {
    static const bool installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(installed)
}

void TellNameChanged(QWidget* control) {
    QAccessibleEvent event(control, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void TellValueChanged(QWidget* control, int value) {
    QAccessibleValueChangeEvent event(control, value);
    QAccessible::updateAccessibility(&event);
}

void TellTextChanged(QWidget* control, const QString& text) {
    QAccessibleValueChangeEvent event(control, text);
    QAccessible::updateAccessibility(&event);
}

void TellChecked(QWidget* control) {
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(control, changed);
    QAccessible::updateAccessibility(&event);
}

void TellExpanded(QWidget* control) {
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(control, changed);
    QAccessible::updateAccessibility(&event);
}
