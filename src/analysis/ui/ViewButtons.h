#pragma once

#include <QWidget>

#include <span>
#include <vector>

class ucButtonA;

/// A button that chooses a view. Its index is the number of the view.
struct ViewButton {
    const char *name, *picture, *tip;
};

/// The strip of buttons that choose a view. It raises which view was asked for and which button is
/// under the pointer; the host decides.
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
