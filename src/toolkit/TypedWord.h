#pragma once

#include <QString>

class QKeyEvent;

/// The letters typed in a list. Letters that follow each other quickly are one word.
class TypedWord {
public:
    /// Adds the letter of the key. Returns the word so far; empty if the key is not a letter.
    QString Add(const QKeyEvent& key);

private:
    QString word_;
    quint64 last_ = 0; ///< when the last letter was typed, in milliseconds
};
