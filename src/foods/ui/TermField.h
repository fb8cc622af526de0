#pragma once

#include "toolkit/LineField.h"

/// The field of the search term. Typed double quotes, asterisks and apostrophes are swallowed,
/// since the term goes into the statement as it stands; pasted ones are not. Enter starts the
/// search.
class TermField : public LineField {
    Q_OBJECT

public:
    explicit TermField(QWidget* parent = nullptr);

Q_SIGNALS:
    void SearchAsked();

protected:
    void keyPressEvent(QKeyEvent*) override;
    void inputMethodEvent(QInputMethodEvent*) override;
};
