#pragma once

#include <QString>

/// The web pages for sharing recipes. They receive a random identifier of this installation and
/// nothing about the user.
namespace Community {
/// Created on first use and kept in the settings.
QString InstallationID();
QString Address();
void Open(); ///< in the browser
} // namespace Community
