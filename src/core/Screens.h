#pragma once

class Navigation;

/// Registers every screen of the nest. This is the only place that does.
void RegisterScreens(Navigation& navigation);
