#pragma once

#include <functional>
#include <string>

/// Hears of every connection to another machine that this process makes, and of every look-up of a
/// name: a program that this is linked into has these functions in place of the C library's.
/// Connections to other processes of the same machine through a file do not count, nor does the
/// machine's own printing service.
namespace Connections {
/// Gets "127.0.0.1:80", "[::1]:80" or the name, before it happens; from any thread.
using Watcher = std::function<void(const std::string& to)>;
void Watch(Watcher watcher); ///< an empty one ends it

/// A person has asked the recipe exchange for something and waits for the answer.
bool AreAskedFor();
} // namespace Connections
