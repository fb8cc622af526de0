#pragma once

#include <QLabel>

/// The role of a text decides its font and its ink.
enum class TextRole { Text, Quiet, Strong, Small, ScreenTitle, CardTitle };

/// A plain caption. Mouse moves pass through it to its parent, so that the screen can reset its
/// buttons.
QLabel* MakeLabel(QWidget* parent, const QString& name, const QString& text,
                  TextRole role = TextRole::Text);

/// The smallest width at which the text needs no more lines than at `width`. At this width its
/// lines are about equally long, and no line holds a single word.
int BalancedWidth(const QString& text, const QFont& font, int width);

const QFont& FontOf(TextRole role);
const QColor& InkOf(TextRole role);
