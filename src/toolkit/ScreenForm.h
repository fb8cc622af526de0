#pragma once

#include "runtime/ScreenTable.h"
#include "toolkit/CleanUp.h"

#include <QList>
#include <QWidget>

#include <functional>
#include <initializer_list>

class ucBox;
class ucButton;

/// A screen of the nest. ShowScreen creates it, lays it over the nest and calls DoWinInit each time
/// the screen comes to the front. Closing a screen destroys it; hiding keeps it. The frame prints
/// the title in the upper left corner, 14 to 196 pixels from the left and 8 to 38 from the top: a
/// screen keeps this place free. Its timer `cleanUp` calls AllOff("").
class ScreenForm : public QWidget {
    Q_OBJECT

public:
    explicit ScreenForm(const ScreenRow& row, QWidget* parent = nullptr);
    ScreenForm(const QString& name, const QString& title, QWidget* parent = nullptr);

    QString Title() const { return title_; }
    /// ShowScreen calls it before the screen is visible: take over the chosen day here.
    virtual void BeforeShow() {}
    /// Brings the contents up to date; see above.
    virtual void DoWinInit() {}
    /// Resets the highlight of all buttons except the named one; case does not matter.
    virtual void AllOff(const QString& except);

protected:
    /// Adds a button. A press calls `pressed`; a mouse move over it calls AllOff with `hoverName`,
    /// or with `name` if there is none.
    ucButton* AddButton(const char* name, const char* caption, std::function<void()> pressed,
                        const char* hoverName = nullptr);
    template <class Derived>
    ucButton* AddButton(const char* name, const char* caption, void (Derived::*pressed)(),
                        const char* hoverName = nullptr) {
        return AddButton(
            name, caption, [this, pressed] { (static_cast<Derived*>(this)->*pressed)(); },
            hoverName);
    }
    /// Adds a box around `contents`; a mouse move over it calls AllOff("").
    ucBox* AddBox(const char* name, const char* caption, QWidget* contents);
    QRect BoxesPlace() const; ///< below the title, above the buttons
    /// Centres the control vertically in the line of the frame's title. Returns its right edge.
    static int PlaceInTitleLine(QWidget* control, int left);
    /// Places the buttons side by side below the boxes, from `left` on.
    void PlaceInRow(int left, std::initializer_list<ucButton*> buttons);
    void PlaceAtEnd(ucButton* button);          ///< at the right end of the button row
    void mouseMoveEvent(QMouseEvent*) override; ///< AllOff("") if the position has changed
    void paintEvent(QPaintEvent*) override;     ///< canvas

private:
    QString title_;
    QList<ucButton*> buttons_;
    QPoint lastMouse_{-1, -1};
};
