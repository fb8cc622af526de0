#pragma once

#include <QLabel>

/// What a text on a screen is, from which its font and ink follow.
enum class TextRole { Text, Quiet, Strong, Small, ScreenTitle, CardTitle };

/// A plain caption in the program's hand. It lets mouse moves through to its parent, so that the
/// screen below can take the hover look off its buttons.
QLabel* MakeLabel(QWidget* parent, const QString& name, const QString& text,
                  TextRole role = TextRole::Text);

/// The narrowest width in which a text takes no more lines than in `width`. Set in it, its lines
/// come out about equally long, and none holds a lone word.
int BalancedWidth(const QString& text, const QFont& font, int width);

const QFont& FontOf(TextRole role);
const QColor& InkOf(TextRole role);
