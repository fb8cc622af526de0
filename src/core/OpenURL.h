#pragma once

#include <QString>
#include <QUrl>

#include <functional>

/// Opens an address, or a page beside the program, in the default browser. Without a browser
/// nothing happens. Failures are not reported.
void OpenURL(const QString& address);

/// Opens the start page of the help, whatever the topic.
void OpenHelp(const QString& topic);

/// Passes an address to the system; false on failure. Empty: the system's own way.
using Browser = std::function<bool(const QUrl& address)>;
void SetBrowser(Browser browser);
