#pragma once

#include <QWidget>

class ucHeader;

/// A framed panel with a header on top; its contents stand in the rectangle that Inner() gives.
class ucBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(QFont Font READ font WRITE setFont)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(double CurrentX MEMBER currentX_)
    Q_PROPERTY(double CurrentY MEMBER currentY_)

public:
    explicit ucBox(QWidget* parent = nullptr);
    explicit ucBox(const QString& caption, QWidget* parent = nullptr);

    QString Caption() const;
    void SetCaption(const QString& caption);
    ucHeader* Header() const { return header_; }
    QRect Inner() const; ///< inside the frame, below the header

Q_SIGNALS:
    void MouseMove(int Button, int Shift, double X, double Y);
    void InnerChanged(); ///< after a resize

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;

private:
    ucHeader* header_;
    double currentX_ = 0;
    double currentY_ = 0;
};
