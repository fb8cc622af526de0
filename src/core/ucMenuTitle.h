#pragma once

#include <QAbstractButton>

/// A flat text button on the command band below the title bar.
class ucMenuTitle : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ text)

public:
    ucMenuTitle(const QString& name, const QString& caption, QWidget* parent);
    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
