#pragma once

#include <QWidget>

class ucScroll;

/// A tall pane in a fixed frame with a scroll bar: the frame `picResultsBox` holds the pane
/// `picResultsPane`; the bar `vsResultsPane` is at the frame's right edge. The pane's top is -10
/// twips times the bar's value; the greatest value is (pane height - frame height) / 10 twips; the
/// steps are 100 and 20. Search results, a day's foods and a recipe's ingredients derive from it.
class ScrollPane : public QWidget {
    Q_OBJECT

public:
    explicit ScrollPane(QWidget* parent = nullptr);
    ~ScrollPane() override;

    QWidget* picResultsBox() const { return box_; }
    QWidget* picResultsPane() const { return pane_; }
    ucScroll* vsResultsPane() const { return bar_; }

    int FrameHeight() const; ///< pixels
    /// In pixels: the inner width without the bar, even if the bar is hidden.
    int PaneWidth() const;
    void ResetPane(); ///< pane as high as the frame, at the top, bar at 0
    void SetPaneHeight(int pixels);
    void ShowBar(); ///< sets the bar up for the present heights and shows it
    void HideBar();
    void EnsureVisible(const QRect& place); ///< scrolls `place` of the pane into view

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
