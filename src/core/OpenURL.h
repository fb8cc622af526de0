#pragma once

#include <QString>
#include <QUrl>

#include <functional>

/// Points the person's browser at an address, or at a page that lies beside the program. The
/// system's file associations say which browser that is; where there is none nothing happens. No
/// failure is told.
void OpenURL(const QString& address);

/// Opens the start page of the help. There is one page to start from, whatever the topic.
void OpenHelp(const QString& topic);

/// What hands an address to the system, false where it cannot. An empty one is the system's own.
using Browser = std::function<bool(const QUrl& address)>;
void SetBrowser(Browser browser);
