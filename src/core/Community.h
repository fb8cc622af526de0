#pragma once

#include <QString>

/// The web pages on which recipes are shared. They are told which installation asks, by a random
/// identifier, and nothing about the person.
namespace Community {
/// Made when it is first asked for, and kept in the settings store.
QString InstallationID();
QString Address();
void Open(); ///< in the browser
} // namespace Community
