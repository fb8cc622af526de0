#include "monkey/Keyboard.h"

namespace {
using Keyboard::Pressed;

const Pressed Often[] = {
    {Qt::Key_Tab},    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Return}, {Qt::Key_Space},
    {Qt::Key_Down},   {Qt::Key_Up},
    {Qt::Key_Left},   {Qt::Key_Right},
    {Qt::Key_Delete}, {Qt::Key_Escape},
};
const Pressed Sometimes[] = {
    {Qt::Key_PageDown},
    {Qt::Key_PageUp},
    {Qt::Key_Home},
    {Qt::Key_End},
    {Qt::Key_Backspace},
    {Qt::Key_Enter, Qt::KeypadModifier},
    {Qt::Key_F1},
    {Qt::Key_F2},
    {Qt::Key_F10},
    {Qt::Key_Menu},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
    {Qt::Key_Comma, Qt::ControlModifier},
    {Qt::Key_1, Qt::ControlModifier},
    {Qt::Key_2, Qt::ControlModifier},
    {Qt::Key_3, Qt::ControlModifier},
    {Qt::Key_4, Qt::ControlModifier},
    {Qt::Key_5, Qt::ControlModifier},
    {Qt::Key_6, Qt::ControlModifier},
    {Qt::Key_D, Qt::ControlModifier},
    {Qt::Key_F, Qt::ControlModifier},
    {Qt::Key_P, Qt::ControlModifier},
    {Qt::Key_F10, Qt::ShiftModifier},
    {Qt::Key_Tab, Qt::ControlModifier},
    {Qt::Key_Home, Qt::ControlModifier},
    {Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier},
    {Qt::Key_F, Qt::AltModifier},
    {Qt::Key_E, Qt::AltModifier},
    {Qt::Key_H, Qt::AltModifier},
    {Qt::Key_Down, Qt::AltModifier},
    {Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier},
};

const QString AllTexts[] = {
    "oats",
    "milk 2%",
    "soup",
    "Pie",
    "1",
    "2.5",
    ".1",
    "99",
    "0",
    "-1",
    "150",
    "198.5",
    "1218105222",
    "12.5",
    "11/1/2026",
    "1/1/1900",
    "2/30/2026",
    "12/31/9999",
    "tom@example.org",
    "Rinse. Cook. Serve with bread.",
    "1e5",
    "1000000",
    "1000001",
    "1e308",
    "99999999999999999999",
    "it's",
    "\"quoted\"",
    "50% of _all_ [x] #1# *",
    "a~b^c|d",
    "<b>bold</b>&amp;",
    "crème brûlée",
    QString::fromUtf8("🍲 \u202e gnirts"),
    QString::fromUtf8("ﷺ\u0300\u0301"),
    " ",
    QString(300, u'W'),
};
} // namespace

std::span<const Pressed> Keyboard::OftenPressed() {
    return Often;
}

std::span<const Pressed> Keyboard::SometimesPressed() {
    return Sometimes;
}

std::span<const QString> Keyboard::Texts() {
    return AllTexts;
}
