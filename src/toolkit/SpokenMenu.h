#pragma once

/// What assistive tools see of the items of menus. A press closes the menu and does what the item
/// does, after the tool has got its answer: an item may open a dialog with an event loop of its
/// own.
namespace SpokenMenu {
void Install(); ///< for all menus
}
