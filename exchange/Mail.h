#pragma once

#include "exchange/Config.h"
#include "exchange/Recipe.h"

#include <string>

namespace exchange {

/// The mail for a recipe with its headers, in plain text. The addresses have been checked.
/// `noMailToken` belongs to the recipient: the link with it stops the mails.
std::string MailOf(const Recipe& recipe, const Config& config, const std::string& messageID,
                   const std::string& noMailToken);

} // namespace exchange
