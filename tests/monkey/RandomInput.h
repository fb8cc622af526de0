#pragma once

#include "monkey/Action.h"

#include <QPoint>
#include <QRandomGenerator>
#include <QRect>

#include <functional>

class QWidget;

/// Chooses the next input at random for the window that a person could use now.
class RandomInput {
public:
    struct Input {
        Action told;
        std::function<void()> perform;
    };

    explicit RandomInput(quint32 seed)
        : random_(seed) {}

    Input Next();

    static QWidget* Window(); ///< takes the input of a person; null if none is open

private:
    struct Way;
    static const Way Ways[];

    Input PressControl(QWidget* window);
    Input PressAnywhere(QWidget* window);
    Input PressKey(QWidget* window);
    Input TypeText(QWidget* window);
    Input Drag(QWidget* window);
    Input TurnWheel(QWidget* window);
    Input MovePointer(QWidget* window);
    Input Minimise(QWidget* window);
    Input CloseWindow(QWidget* window);
    Input PassMidnight(QWidget* window);

    Input PressAt(QWidget* window, QPoint place);
    QWidget* AnyControl(QWidget* window);
    QPoint PlaceIn(const QRect& area);
    QPoint PlaceOn(QWidget* control, QWidget* window);
    bool Chance(int percent) { return random_.bounded(100) < percent; }
    template <class Table> auto OneOf(const Table& table) {
        return table[random_.bounded(int(std::size(table)))];
    }

    QRandomGenerator random_;
};
