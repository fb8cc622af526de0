#pragma once

class Navigation;

/// Registers every screen of the nest. A new screen is registered here and nowhere else.
void RegisterScreens(Navigation& navigation);
