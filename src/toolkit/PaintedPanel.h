#pragma once

#include <QWidget>

/// What the painted panels share: a caption that repaints on setting, smoothed print, a click
/// event.
class PaintedPanel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)

public:
    explicit PaintedPanel(QWidget* parent = nullptr);

    QString Caption() const { return caption_; }
    virtual void SetCaption(const QString& caption);

Q_SIGNALS:
    void Click();
    void MouseMove(int Button, int Shift, double X, double Y);

protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    QString caption_ = QStringLiteral("Custom");
};
