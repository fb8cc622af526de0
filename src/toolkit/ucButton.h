#pragma once

#include <QWidget>

/// A captioned button of any width: left cap, one-pixel middle column stretched, right cap.
/// States: 1 at rest, 2 pointer over, 3 pressed, 4 disabled. A button that is told it is enabled
/// again leaves state 4 only by Reset. Space and Return press it from the keyboard; focus is drawn.
class ucButton : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(int State READ State)
    Q_PROPERTY(bool MainAction READ MainAction WRITE SetMainAction)

public:
    explicit ucButton(QWidget* parent = nullptr);
    explicit ucButton(const QString& caption, QWidget* parent = nullptr);

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);
    bool Enabled() const;
    void SetEnabled(bool enabled);
    int State() const { return state_; }
    bool MainAction() const {
        return mainAction_;
    } ///< the one main action of a screen is painted so
    void SetMainAction(bool mainAction);
    void Reset(); ///< back to state 1, or to 4 where disabled
    QSize sizeHint() const override;

Q_SIGNALS:
    void Click();
    void MouseMove(int Button, int Shift, double X, double Y);

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void keyReleaseEvent(QKeyEvent*) override;
    void showEvent(QShowEvent*) override;
    void leaveEvent(QEvent*) override;

private:
    void SetState(int state);

    QString caption_;
    int state_ = 1;
    bool mainAction_ = false;
};
