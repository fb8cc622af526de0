#pragma once

#include <QWidget>

class QPlainTextEdit;
class ucScroll;

/// The preparation instructions on a recipe's card: a frame of five lines, `picInstBox`, with the
/// text and its scroll bar. Any change of the bar moves the text by one line, even if the bar
/// jumped: the two agree for single steps only. The wheel moves the text, and the bar follows.
class InstructionText : public QWidget {
    Q_OBJECT

public:
    static constexpr int LinesInSight = 5;

    explicit InstructionText(QWidget* parent = nullptr);

    QString Text() const;
    void SetText(const QString& text); ///< does nothing if the text is there and was not edited
    void SetReadOnly(bool readOnly);
    void ResetBar();
    int LineCount() const; ///< with the line breaks of the card's width
    QSize sizeHint() const override;

    /// Scrolls a text by that many lines; a positive number scrolls down.
    static void ScrollText(QPlainTextEdit* control, int lines);

Q_SIGNALS:
    void MouseMove(); ///< over the text

protected:
    void resizeEvent(QResizeEvent*) override;
    void paintEvent(QPaintEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddText();
    void AddBar();
    void OnTextChange();
    void OnBarChange(int value);
    void Wheel(QEvent* event);
    int LineHeight() const;
    int CaretLine() const;

    QPlainTextEdit* text_;
    ucScroll* bar_;
    QString given_;
    int lastValue_ = 0;
};
