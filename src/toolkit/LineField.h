#pragma once

#include <QLineEdit>

/// A text field of one line. A pasted or dropped line break becomes a blank. Enter counts once for
/// each press, without key repeat, and is not passed on to the dialog.
class LineField : public QLineEdit {
    Q_OBJECT

public:
    explicit LineField(QWidget* parent = nullptr);
    explicit LineField(const QString& text, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent*) override;
};
