#pragma once

#include <string>
#include <vector>

/// An option, or an argument without a name.
struct OptionOutline {
    std::string name;  ///< "--folder", or "FILE" of an argument
    std::string brief; ///< "-f"; empty where there is none
    std::string value; ///< what stands behind it: "TEXT"; empty for a flag
    std::string description;
    std::vector<std::string> choices; ///< all values that it takes; empty for any
    bool required = false;
    bool many = false; ///< an argument that may be repeated

    bool IsArgument() const { return name.front() != '-'; }
    std::string Text() const;  ///< its description with all values that it takes
    std::string Usage() const; ///< of an argument: "FILE...", or "[TO]" where it may be left out
};

/// A command as its help shows it, or the program itself. What is made from it says the same.
struct CommandOutline {
    std::string name; ///< "foods import"; empty for the program itself
    std::string description;
    std::string footer;
    std::vector<OptionOutline> options; ///< arguments first

    std::string Sentence() const; ///< the description with its full stop
    std::string LastWord() const; ///< of the name

    /// The commands that follow a command: "import" after "foods".
    static std::vector<const CommandOutline*> Below(const std::vector<CommandOutline>& outline,
                                                    const std::string& name);
};
