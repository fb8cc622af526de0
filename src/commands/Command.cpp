#include "commands/Command.h"

#include "commands/Session.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace {
Command::Taker Into(QStringList& list) {
    return [&list](const std::string& text) { list << QString::fromStdString(text); };
}

CLI::Option& AddMany(CLI::App& app, const std::string& name, const Command::Taker& take,
                     const std::string& help) {
    const auto takeAll = [take](const std::vector<std::string>& texts) {
        std::ranges::for_each(texts, take);
    };
    return *app.add_option_function<std::vector<std::string>>(name, takeAll, help);
}
} // namespace

CommandOption CommandOption::Required() const {
    option_->required();
    return *this;
}

CommandOption CommandOption::Needs(const CommandOption& other) const {
    option_->needs(other.option_);
    return *this;
}

CommandOption CommandOption::Value(const std::string& name) const {
    option_->type_name(name);
    return *this;
}

CommandOption CommandOption::OneOf(const std::vector<std::string>& words) const {
    const auto accept = [words](std::string& text) {
        const auto same =
            std::ranges::find(words, CLI::detail::to_lower(text),
                              [](const auto& word) { return CLI::detail::to_lower(word); });
        if (same == words.end())
            return '"' + text + "\" is not one of " + CLI::detail::join(words, ", ") + '.';
        text = *same;
        return std::string();
    };
    option_->transform(CLI::Validator(accept, '{' + CLI::detail::join(words) + '}'));
    return *this;
}

CommandOption CommandOption::Check(const Problem& problem) const {
    option_->check(CLI::Validator(problem, ""));
    return *this;
}

Command Command::Add(const std::string& name, const std::string& description) const {
    return {*app_.add_subcommand(name, description), session_};
}

void Command::NeedsOneOfItsCommands() const {
    app_.require_subcommand(1);
    app_.fallthrough();
}

CommandOption Command::Flag(const std::string& name, bool& into, const std::string& help) const {
    return CommandOption(*app_.add_flag(name, into, help));
}

CommandOption Command::Take(const std::string& name, int& into, const std::string& help) const {
    return CommandOption(*app_.add_option(name, into, help));
}

CommandOption Command::Take(const std::string& name, std::string& into,
                            const std::string& help) const {
    return CommandOption(*app_.add_option(name, into, help));
}

CommandOption Command::Take(const std::string& name, QString& into, const std::string& help) const {
    return Take(
        name, [&into](const std::string& text) { into = QString::fromStdString(text); }, help);
}

CommandOption Command::Take(const std::string& name, QStringList& into,
                            const std::string& help) const {
    return CommandOption(AddMany(app_, name, Into(into), help));
}

CommandOption Command::Take(const std::string& name, const Taker& take,
                            const std::string& help) const {
    return CommandOption(*app_.add_option_function<std::string>(name, take, help));
}

CommandOption Command::TakeEach(const std::string& name, QStringList& into,
                                const std::string& help) const {
    return TakeEach(name, Into(into), help);
}

CommandOption Command::TakeEach(const std::string& name, const Taker& take,
                                const std::string& help) const {
    return CommandOption(*AddMany(app_, name, take, help).allow_extra_args(false));
}

void Command::Footer(const std::string& text) const {
    app_.footer(text);
}

void Command::Does(const std::function<int()>& work) const {
    app_.callback([&session = session_, work] { session.Do(work); });
}
