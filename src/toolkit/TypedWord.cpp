#include "toolkit/TypedWord.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

bool IsLetter(const QKeyEvent& key) {
    const QString text = key.text();
    const bool command =
        key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !command && !text.isEmpty() && text[0].isPrint() && !text[0].isSpace();
}

} // namespace

QString TypedWord::Add(const QKeyEvent& key) {
    if (!IsLetter(key))
        return {};
    if (key.timestamp() > last_ + quint64(QApplication::keyboardInputInterval()))
        word_.clear();
    last_ = key.timestamp();
    word_ += key.text();
    return word_;
}
