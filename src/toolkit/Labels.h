#pragma once

#include <QLabel>

/// What a text on a screen is, from which its font and ink follow.
enum class TextRole { Text, Quiet, Strong, Small, ScreenTitle, CardTitle };

/// A plain caption in the program's hand. It lets mouse moves through to its parent, so that the
/// screen below can take the hover look off its buttons.
QLabel* MakeLabel(QWidget* parent, const QString& name, const QString& text,
                  TextRole role = TextRole::Text);

const QFont& FontOf(TextRole role);
const QColor& InkOf(TextRole role);
