#pragma once

#include <QString>

#include <array>

class frmHOME;

/// The items of the menu bar. The position of an item in the table is its index.
namespace MenuItems {
enum Menu { File, Edit, Help };
inline constexpr int MenuCount = 3;

struct Title {
    const char* name;
    const char* panel;
    const char* caption;
};

struct Item {
    Menu menu;
    const char* caption;
    bool shown;
    void (*act)(frmHOME& frame); ///< null: the item is greyed
};

const std::array<Title, MenuCount>& Titles();
const std::array<Item, 13>& All();
} // namespace MenuItems
