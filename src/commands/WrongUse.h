#pragma once

#include <QString>

namespace CLI {
class App;
class ParseError;
} // namespace CLI

class UsageError;

/// What is wrong with the arguments of a call, and where it is told how to write them.
namespace WrongUse {
QString Message(const CLI::App& program, const CLI::ParseError& wrong);
QString Message(const CLI::App& program, const UsageError& wrong);
} // namespace WrongUse
