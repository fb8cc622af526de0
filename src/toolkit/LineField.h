#pragma once

#include <QLineEdit>

/// The program's text field of one line. A line break that comes in, pasted or dropped, becomes a
/// blank. Enter counts once a press, however long it is held, and goes no further.
class LineField : public QLineEdit {
    Q_OBJECT

public:
    explicit LineField(QWidget* parent = nullptr);
    explicit LineField(const QString& text, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent*) override;
};
