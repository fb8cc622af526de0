#pragma once

class frmHOME;

/// The shortcuts of the frame that lead to the screens, from any screen: Ctrl+1 to Ctrl+6 in the
/// order of Screens::All, Ctrl+F to the food search of today, Ctrl+D to the calendar of the day
/// screen. A key of the screen in front changes nothing: what is being typed stays.
namespace ScreenKeys {
void AddTo(frmHOME& frame);
}
