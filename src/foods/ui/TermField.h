#pragma once

#include "toolkit/LineField.h"

/// The field for the search term. It ignores typed double quotes, asterisks and apostrophes, as the
/// term goes into the statement unchanged. Pasted text is not filtered. Enter starts the search.
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
