#pragma once

#include "toolkit/ScrollPane.h"

#include <QList>
#include <QMouseEvent>

class ucAte;

/// The scrolling pane of ucAte lines: a day's foods or a recipe's ingredients. A redraw uses the
/// same line objects again; spare ones are hidden and have no name. The host adds headings and
/// blank lines within a Redraw, and sets the greatest number of lines.
class AtePane : public ScrollPane {
    Q_OBJECT

public:
    static constexpr int Unlimited = -1;

    explicit AtePane(QWidget* parent = nullptr);

    /// True by default: a list shorter than the frame gets a pane as high as the frame.
    void SetFillsFrame(bool fills) { fillsFrame_ = fills; }

    /// Suspends painting until the scope ends. After a reset the pane shows its top, whichever line
    /// has the focus.
    class Redraw {
    public:
        Redraw(AtePane& pane, bool resetPane);
        ~Redraw();
        Redraw(const Redraw&) = delete;
        Redraw& operator=(const Redraw&) = delete;

    private:
        AtePane& pane_;
        bool resetPane_;
    };

    void ClearList();
    /// Adds a line at the running height, unless there are `mostLines` already.
    void showFood(const QString& FoodName, const QString& Serving, qint32 ID, double QTY,
                  int mostLines = Unlimited);
    void PlaceHeading(QWidget* heading); ///< at the running height, as wide as the pane
    void AddBlankLine();                 ///< as high as the template
    int LineCount() const { return used_; }
    ucAte* Line(int index) const { return rows_.at(index); } ///< from 1; 0 is the template

Q_SIGNALS:
    void RemoveFood(qint32 ID);
    void Click();                           ///< on the empty pane
    void PaneMove(const QMouseEvent* move); ///< over the empty pane
    void LineMove();                        ///< over a line

protected:
    void resizeEvent(QResizeEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LetGo(const QWidget& over, const QMouseEvent& mouse);
    void Begin(bool resetPane);
    void End(bool resetPane);
    void ShowTop();
    ucAte* NextLine();
    ucAte* MakeLine();
    void Release(int from);
    void SizePane();
    void FitWidths();
    void ChainFocus();
    void KeepFocus();
    void AddHeight(const QWidget* placed);

    QList<ucAte*> rows_; ///< the template, the lines in use, the spare lines
    QList<QWidget*> headings_;
    QList<QWidget*> chain_; ///< the tab order
    QList<QWidget*> lastChain_;
    int used_ = 0;
    int runningHeight_ = 0; ///< twips
    bool pressed_ = false;
    bool fillsFrame_ = true;
};
