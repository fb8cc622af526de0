#include "toolkit/LineField.h"

#include <QKeyEvent>
#include <QRegularExpression>
#include <QValidator>

namespace {

/// The field calls it for every change of its text: typed, pasted, dropped or set.
class OneLine : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int& cursor) const override {
        static const QRegularExpression lineBreak(
            QStringLiteral("\r\n|[\n\v\f\r\u0085\u2028\u2029]"));
        const QString blank(u' ');
        cursor = int(text.left(cursor).replace(lineBreak, blank).size());
        text.replace(lineBreak, blank);
        return Acceptable;
    }
};

bool IsEnter(const QKeyEvent* event) {
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

} // namespace

LineField::LineField(QWidget* parent)
    : QLineEdit(parent) {
    setValidator(new OneLine(this));
}

LineField::LineField(const QString& text, QWidget* parent)
    : LineField(parent) {
    setText(text);
}

void LineField::keyPressEvent(QKeyEvent* event) {
    if (!IsEnter(event) || !event->isAutoRepeat())
        QLineEdit::keyPressEvent(event);
    if (IsEnter(event))
        event->accept();
}
