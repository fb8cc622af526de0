#pragma once

#include <QDialog>

class QTimer;

/// The picture at start. It closes after two seconds, or at a click or a key. The About box is the
/// same window without the timer.
class frmSplash : public QDialog {
    Q_OBJECT

public:
    explicit frmSplash(QWidget* owner = nullptr);

    QTimer* tmrClose() const { return tmrClose_; }

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void LayTexts();

    QTimer* tmrClose_;
};
