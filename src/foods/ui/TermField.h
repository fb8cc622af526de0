#pragma once

#include "toolkit/LineField.h"

/// The field for the search term. It ignores typed double quotes, asterisks and apostrophes, as the
/// term goes into the statement unchanged. Pasted text is not filtered. Enter starts the search. In
/// an empty field the Down key asks for the foods that were logged before.
class TermField : public LineField {
    Q_OBJECT

public:
    explicit TermField(QWidget* parent = nullptr);

Q_SIGNALS:
    void SearchAsked();
    void HabitsAsked();

protected:
    void keyPressEvent(QKeyEvent*) override;
    void inputMethodEvent(QInputMethodEvent*) override;
};
