#pragma once

#include <QWidget>

#include <span>
#include <vector>

class ucButtonA;

/// One of the buttons that choose a view. Its place in the row is the view's number.
struct ViewButton {
    const char *name, *picture, *tip;
};

/// A strip with the buttons that choose among views. It tells which view is asked for and which
/// button the pointer is over; the host decides.
class ViewButtons : public QWidget {
    Q_OBJECT

public:
    ViewButtons(std::span<const ViewButton> views, QWidget* parent);

    void SetChosen(int view);
    void ResetAllBut(const QString& name); ///< in lower case
    int Right() const;                     ///< where the last button ends, in pixels
    QSize sizeHint() const override;

Q_SIGNALS:
    void Asked(int view);
    void Hovered(const QString& name); ///< in lower case

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    ucButtonA* AddButton(const ViewButton& view);
    void PlaceButtons();

    std::vector<ucButtonA*> buttons_;
};
