#pragma once

#include <QString>
#include <Qt>

#include <span>

/// What the monkey types.
namespace Keyboard {
struct Pressed {
    int key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};
std::span<const Pressed> OftenPressed(); ///< most controls act on these
std::span<const Pressed> SometimesPressed();

/// What a person types, and what only somebody else would.
std::span<const QString> Texts();
} // namespace Keyboard
