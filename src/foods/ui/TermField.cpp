#include "foods/ui/TermField.h"

#include "foods/SearchTerms.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

#include <algorithm>

TermField::TermField(QWidget* parent)
    : LineField(parent) {
    setMaxLength(SearchTerms::Longest);
    connect(this, &QLineEdit::returnPressed, this, &TermField::SearchAsked);
}

static bool IsRefused(QChar typed) {
    return typed == u'"' || typed == u'*' || typed == u'\'';
}

void TermField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down && text().isEmpty()) {
        Q_EMIT HabitsAsked();
        return;
    }
    const QString typed = event->text();
    if (std::none_of(typed.cbegin(), typed.cend(), IsRefused))
        LineField::keyPressEvent(event);
}

/// Text composed with dead keys or an input method is typed text, too.
void TermField::inputMethodEvent(QInputMethodEvent* event) {
    QString typed = event->commitString();
    typed.removeIf(IsRefused);
    event->setCommitString(typed, event->replacementStart(), event->replacementLength());
    LineField::inputMethodEvent(event);
}
