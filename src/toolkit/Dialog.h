#pragma once

#include <QDialog>

class ucTitleFlat;

/// A modal dialog in the program's look: no platform title bar, a flat title of its own, canvas
/// with a frame. Escape closes it like Cancel. The timer `cleanUp` takes the hover look off its
/// buttons.
class Dialog : public QDialog {
    Q_OBJECT

public:
    Dialog(const QString& name, const QString& title, QWidget* owner = nullptr);

    ucTitleFlat* Title() const { return title_; }
    /// Resets every ucButton and ucButtonA but the one named, without regard to case.
    virtual void AllOff(const QString& except);

    /// Shows it modally over its owner (or the screen's middle) and returns when it has closed.
    int ShowModal();

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void showEvent(QShowEvent*) override; ///< stands over its owner, or in the screen's middle
    QRect Inner() const;                  ///< below the title, inside the edges

private:
    ucTitleFlat* title_;
};
