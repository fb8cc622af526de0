#include "exchange/Mail.h"

#include "exchange/Moment.h"
#include "exchange/Numbers.h"
#include "exchange/ShownText.h"
#include "exchange/Text.h"

#include <openssl/evp.h>

namespace exchange {
namespace {
std::string Base64(const std::string& text) {
    std::string encoded((text.size() + 2) / 3 * 4 + 1, '\0');
    const auto size = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(encoded.data()),
                                      reinterpret_cast<const unsigned char*>(text.data()),
                                      static_cast<int>(text.size()));
    encoded.resize(static_cast<size_t>(size));
    return encoded;
}

/// How many of the first bytes make at most `most` and end with a whole letter.
size_t WholeLetters(const std::string& text, size_t begin, size_t most) {
    auto end = std::min(text.size(), begin + most);
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xc0) == 0x80)
        --end;
    return end - begin;
}

/// A header's text as encoded words, folded.
std::string Encoded(const std::string& text) {
    constexpr size_t most = 42;
    std::string encoded;
    for (size_t begin = 0; begin < text.size();) {
        const auto size = WholeLetters(text, begin, most);
        encoded.append(encoded.empty() ? "" : "\r\n ");
        encoded.append("=?utf-8?B?").append(Base64(text.substr(begin, size))).append("?=");
        begin += size;
    }
    return encoded;
}

/// The body as Base64 in short lines, which every relay accepts.
std::string Body(const std::string& text) {
    constexpr size_t lineLength = 76;
    const auto encoded = Base64(text);
    std::string lines;
    for (size_t begin = 0; begin < encoded.size(); begin += lineLength)
        lines.append(encoded, begin, lineLength).append("\r\n");
    return lines;
}

std::string Ingredients(const Recipe& recipe) {
    std::string text;
    for (const auto& ingredient : recipe.ingredients) {
        const auto serving = ShownText::Line(ingredient.Portion().value_or(""), ShownText::InCard);
        text.append("- ");
        text += ShownText::Name(ingredient.foodName.value_or(""), ShownText::InCard);
        if (!serving.empty())
            text.append(", ").append(serving);
        text += "\n";
    }
    return text.empty() ? text : "Ingredients\n" + text + "\n";
}

/// Shortened, since relays refuse mails of several mebibytes.
std::string Instructions(const Recipe& recipe) {
    constexpr size_t most = 100'000;
    auto text = ShownText::Lines(recipe.instructions.value_or(""));
    if (text.size() <= most)
        return text;
    return text.substr(0, WholeLetters(text, 0, most)) +
           "…\n\nThe instructions are too long for a mail. Import the recipe to read all of them.";
}

std::string Card(const Recipe& recipe) {
    const auto serving = ShownText::Line(recipe.servingName.value_or(""), ShownText::InCard);
    std::string text = ShownText::Name(recipe.name.value_or(""), ShownText::InCard) + "\n\n";
    if (recipe.yield)
        text += "Recipe yield: " + Numbers::Counted(*recipe.yield, "serving") + "\n";
    if (!serving.empty())
        text += "Serving size: " + serving + "\n";
    if (recipe.prepTime)
        text += "Total time: " + Numbers::Counted(*recipe.prepTime, "minute") + "\n";
    if (const auto calories = recipe.PerServing(CaloriesPosition - 1))
        text += "Calories: " + Numbers::Whole(*calories) + " per serving\n";
    text += "\n" + Ingredients(recipe);
    return text + "Preparation\n" + Instructions(recipe) + "\n\n";
}

/// Empty if public_url is not set.
std::string NoMailLink(const Config& config, const std::string& token) {
    if (config.public_url.empty())
        return {};
    return config.public_url + "/halvane/nomail.asp?token=" + token;
}

std::string HowToEnd(const Config& config, const std::string& link) {
    if (link.empty())
        return "To get no more mail from this server, write to " + config.mail_from + ".\n";
    return "To get no more mail from this server, open this page and press the button:\n" + link +
           "\n";
}

std::string Text(const Recipe& recipe, const Config& config, const std::string& link) {
    const auto id = std::to_string(recipe.id);
    auto text = recipe.from + " sends you a recipe from Halvane.\n\n" + Card(recipe);
    text += "The recipe ID is " + id +
            ".\n\n"
            "To import the recipe into your own Halvane, open Recipes, press Import, enter " +
            id + " and press Submit.\n";
    if (!config.public_url.empty())
        text += "You can also read it at " + config.public_url + "/halvane/recipe.asp?recID=" + id +
                "\n";
    return text +
           "\nThis mail was sent once, because somebody entered your address. Replies go to " +
           recipe.from + ".\n" + HowToEnd(config, link);
}

std::string Header(const std::string& name, const std::string& value) {
    return name + ": " + value + "\r\n";
}

/// With these headers a mail program offers a button for the link. It requires HTTPS.
std::string NoMailHeaders(const Config& config, const std::string& link) {
    if (link.empty())
        return Header("List-Unsubscribe", "<mailto:" + config.mail_from + ">");
    auto headers = Header("List-Unsubscribe", "<" + link + ">");
    if (link.starts_with("https://"))
        headers += Header("List-Unsubscribe-Post", "List-Unsubscribe=One-Click");
    return headers;
}
} // namespace

std::string MailOf(const Recipe& recipe, const Config& config, const std::string& messageID,
                   const std::string& noMailToken) {
    const auto link = NoMailLink(config, noMailToken);
    const auto domain = config.mail_from.substr(config.mail_from.find('@') + 1);
    std::string mail = Header("Date", Moment::Written("%a, %d %b %Y %H:%M:%S +0000"));
    mail += Header("From", "Halvane <" + config.mail_from + ">");
    mail += Header("To", "<" + recipe.to + ">");
    mail += Header("Reply-To", "<" + recipe.from + ">");
    mail +=
        Header("Subject", Encoded("A recipe for you: " +
                                  ShownText::Name(recipe.name.value_or(""), ShownText::InList)));
    mail += Header("Message-ID", "<" + messageID + "@" + domain + ">");
    mail += NoMailHeaders(config, link);
    mail += Header("MIME-Version", "1.0");
    mail += Header("Content-Type", "text/plain; charset=utf-8");
    mail += Header("Content-Transfer-Encoding", "base64");
    return mail + "\r\n" + Body(Text(recipe, config, link));
}

} // namespace exchange
