#pragma once

#include <QString>

/// Where the recipe exchange and its web pages stand, and whom people write to: settings of the
/// build. A test sets its own.
namespace Server {
QString Address(); ///< "http://host:port", without a slash at its end
QString Support(); ///< an e-mail address

void SetAddress(const QString& address); ///< empty: back to what was built in
void SetSupport(const QString& support);
} // namespace Server
