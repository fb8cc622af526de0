#include "exchange/CommandLine.h"

#include "exchange/Text.h"

#include <CLI/CLI.hpp>

namespace exchange::CommandLine {
namespace {
constexpr const char* About =
    "Serves the recipe exchange until SIGTERM. A setting is read from the file of --config"
    " (`name = value`), from the environment and from here; the later of these overrides the"
    " earlier.";
constexpr const char* SettingGroup = "Settings";

using Settings = std::map<std::string, std::string>;

void AddSettings(CLI::App& app, Settings& settings) {
    for (const auto& name : Config::Names())
        app.add_option("--" + name, settings[name])
            ->envname("HALVANE_EXCHANGE_" + Upper(name))
            ->type_name("")
            ->group(SettingGroup);
}

void AddOptions(CLI::App& app, const std::vector<Option>& options, Command& command) {
    for (const auto& option : options)
        if (option.object.empty())
            app.add_flag(option.name)->description(option.help);
        else
            app.add_option(option.name, command.object, option.help)->type_name(option.object);
}

std::string Chosen(const CLI::App& app, const std::vector<Option>& options) {
    std::string chosen;
    for (const auto& option : options) {
        if (app.count(option.name) == 0)
            continue;
        if (!chosen.empty())
            throw ConfigError(chosen + " and " + option.name + " cannot be used together");
        chosen = option.name;
    }
    return chosen;
}

void Take(const CLI::App& app, const Settings& settings, Config& config) {
    for (const auto& [name, value] : settings)
        if (app.count("--" + name) > 0)
            config.Set(name, value);
}
} // namespace

Command Read(int count, const char* const* words, const std::vector<Option>& options) {
    CLI::App app(About, "halvane-exchange");
    Command command;
    Settings settings;
    std::string file;
    app.add_option("--config", file, "read the settings from a file")->type_name("FILE");
    AddOptions(app, options, command);
    AddSettings(app, settings);
    try {
        app.parse(count, words);
    } catch (const CLI::CallForHelp&) {
        command.help = app.help();
        return command;
    } catch (const CLI::ParseError& error) {
        throw ConfigError(std::string(error.what()) + "; see --help");
    }
    command.action = Chosen(app, options);
    if (!file.empty())
        command.config.ReadFile(file);
    Take(app, settings, command.config);
    command.config.Settle();
    return command;
}

} // namespace exchange::CommandLine
