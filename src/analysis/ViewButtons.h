#pragma once

#include <QWidget>

#include <array>

class ucButtonA;

/// The strip `Picture1` with the buttons that choose among the views of the daily panel. It tells
/// which view is asked for and which button the pointer is over; the panel decides.
class ViewButtons : public QWidget {
    Q_OBJECT

public:
    explicit ViewButtons(QWidget* parent);

    void SetChosen(int mode);
    void ResetAllBut(const QString& name); ///< in lower case
    int Right() const;                     ///< where the last button ends, in pixels
    QSize sizeHint() const override;

Q_SIGNALS:
    void Asked(int mode);
    void Hovered(const QString& name); ///< in lower case

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    ucButtonA* AddButton(int mode);

    std::array<ucButtonA*, 3> buttons_{};
};
