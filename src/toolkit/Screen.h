#pragma once

#include "toolkit/CleanUp.h"

#include <QList>
#include <QWidget>

#include <functional>
#include <initializer_list>

class ucBox;
class ucButton;

/// A screen of the nest. ShowScreen creates it by its registered name, lays it over the nest and
/// calls DoWinInit each time it comes forward. Closing it destroys it; hiding keeps it. The upper
/// left corner of the nest, 14 to 196 pixels from the left and 8 to 38 from the top, is kept free
/// for the frame's title of the screen. Its timer `cleanUp` calls AllOff(""), too.
class Screen : public QWidget {
    Q_OBJECT

public:
    Screen(const QString& name, const QString& title, QWidget* parent = nullptr);

    QString Title() const { return title_; }
    /// Called by ShowScreen before the screen is shown: the place to take over the chosen day.
    virtual void BeforeShow() {}
    /// Brings the contents up to date.
    virtual void DoWinInit() {}
    /// Takes the hover look off all buttons but the one named, without regard to case.
    virtual void AllOff(const QString& except);

protected:
    /// A button of this screen: a press calls `pressed`, the pointer over it puts the others out.
    /// AllOff hears of it by `hoverName` where one is given.
    ucButton* AddButton(const char* name, const char* caption, std::function<void()> pressed,
                        const char* hoverName = nullptr);
    template <class Derived>
    ucButton* AddButton(const char* name, const char* caption, void (Derived::*pressed)(),
                        const char* hoverName = nullptr) {
        return AddButton(
            name, caption, [this, pressed] { (static_cast<Derived*>(this)->*pressed)(); },
            hoverName);
    }
    /// A box of this screen around its contents; the pointer over it puts the buttons out.
    ucBox* AddBox(const char* name, const char* caption, QWidget* contents);
    QRect BoxesPlace() const; ///< below the title, above the buttons
    /// In the middle of the line beside the frame's title, at the control's own size. Gives the
    /// place right of it.
    static int PlaceInTitleLine(QWidget* control, int left);
    /// Side by side below the boxes, from `left` on.
    void PlaceInRow(int left, std::initializer_list<ucButton*> buttons);
    void PlaceAtEnd(ucButton* button);          ///< of that row
    void mouseMoveEvent(QMouseEvent*) override; ///< AllOff("") where the pointer has really moved
    void paintEvent(QPaintEvent*) override;     ///< canvas

private:
    QString title_;
    QList<ucButton*> buttons_;
    QPoint lastMouse_{-1, -1};
};
