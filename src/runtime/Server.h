#pragma once

#include <QString>

/// The address of the recipe exchange and its web pages, and the support address: settings of the
/// build. A test sets its own.
namespace Server {
QString Address(); ///< "http://host:port", without a trailing slash
QString Support(); ///< an e-mail address

void SetAddress(const QString& address); ///< empty restores the built-in one
void SetSupport(const QString& support);
} // namespace Server
