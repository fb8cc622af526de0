#pragma once

#include <QDialog>

class ucTitleFlat;

/// A modal dialog with the program's own flat title and frame instead of the platform's. Escape
/// closes it like Cancel. Its timer `cleanUp` resets the highlight of its buttons.
class Dialog : public QDialog {
    Q_OBJECT

public:
    Dialog(const QString& name, const QString& title, QWidget* owner = nullptr);

    ucTitleFlat* Title() const { return title_; }
    /// Resets every ucButton and ucButtonA except the named one; case does not matter.
    virtual void AllOff(const QString& except);

    /// Shows it modally over its owner (or the screen's middle) and returns when it has closed.
    int ShowModal();

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void showEvent(QShowEvent*) override; ///< centres it over its owner or on the screen
    QRect Inner() const;                  ///< below the title, inside the edges

private:
    ucTitleFlat* title_;
};
