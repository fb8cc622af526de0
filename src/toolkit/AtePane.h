#pragma once

#include "toolkit/ScrollPane.h"

#include <QList>
#include <QMouseEvent>

class ucAte;

/// The scrolling pane of ucAte lines that a day's foods and a recipe's ingredients share. Lines are
/// kept and used again from one redraw to the next; those not in use are hidden and nameless. What
/// stands between the lines (headings, blank lines) and how many lines there may be is told by the
/// host, from within a Redraw.
class AtePane : public ScrollPane {
    Q_OBJECT

public:
    static constexpr int Unlimited = -1;

    explicit AtePane(QWidget* parent = nullptr);

    /// Whether the pane of a list that is shorter than the frame is as high as that. It is, unless
    /// told otherwise.
    void SetFillsFrame(bool fills) { fillsFrame_ = fills; }

    /// No line comes up before the end of the block, which ends well however it is left. After a
    /// reset the top is in view, wherever the focus is.
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

    QList<ucAte*> rows_; ///< the template, the lines in use, the rest of the pool
    QList<QWidget*> headings_;
    QList<QWidget*> chain_; ///< what the Tab key visits, in the order placed
    QList<QWidget*> lastChain_;
    int used_ = 0;
    int runningHeight_ = 0; ///< twips
    bool pressed_ = false;
    bool fillsFrame_ = true;
};
