#pragma once

#include <QAccessible>

/// The value of a control as a text that a screen reader reads and nobody can select or change.
class SpokenText : public QAccessibleTextInterface {
public:
    QString text(int from, int to) const final { return Spoken().mid(from, to - from); }
    int characterCount() const final { return int(Spoken().size()); }
    void selection(int, int* from, int* to) const final { *from = *to = 0; }
    int selectionCount() const final { return 0; }
    void addSelection(int, int) final {}
    void removeSelection(int) final {}
    void setSelection(int, int, int) final {}
    int cursorPosition() const final { return 0; }
    void setCursorPosition(int) final {}
    QRect characterRect(int) const final { return {}; }
    int offsetAtPoint(const QPoint&) const final { return -1; }
    void scrollToSubstring(int, int) final {}
    QString attributes(int, int* from, int* to) const final;

protected:
    virtual QString Spoken() const = 0;
};
