#pragma once

#include <QWidget>

class ucScroll;

/// A tall pane in a fixed frame, with its scroll bar: `picResultsBox` holds `picResultsPane`,
/// `vsResultsPane` stands on the frame's inner right edge. The pane's top is -10 twips times the
/// bar's value, the greatest value is (pane height - frame height) / 10 twips, the large step 100
/// and the small step 20. Lists of search results, of a day's foods and of a recipe's ingredients
/// stand on it.
class ScrollPane : public QWidget {
    Q_OBJECT

public:
    explicit ScrollPane(QWidget* parent = nullptr);
    ~ScrollPane() override;

    QWidget* picResultsBox() const { return box_; }
    QWidget* picResultsPane() const { return pane_; }
    ucScroll* vsResultsPane() const { return bar_; }

    int FrameHeight() const; ///< pixels
    /// In pixels: the inner width less the bar's place, whether or not the bar is shown.
    int PaneWidth() const;
    void ResetPane(); ///< pane as high as the frame, at the top, bar at 0
    void SetPaneHeight(int pixels);
    void ShowBar(); ///< sets the bar up for the present heights and shows it
    void HideBar();
    void EnsureVisible(const QRect& place); ///< scrolls until `place` of the pane can be seen

Q_SIGNALS:
    void Scrolled(); ///< the pane's place or the frame's size has changed

protected:
    void resizeEvent(QResizeEvent*) override;
    void wheelEvent(QWheelEvent*) override;

private:
    void OnBarChange(int value);
    void FollowFocus(QWidget* old, QWidget* now);

    QWidget* box_;
    QWidget* pane_;
    ucScroll* bar_;
    int lastValue_ = 0;
};
