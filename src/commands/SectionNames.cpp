#include "commands/SectionNames.h"

#include "runtime/Counted.h"

#include <map>

namespace {
struct Name {
    const char* one;
    const char* many;
};

const Name& NameOf(const std::string& section) {
    static const std::map<std::string, Name> Names{
        {"profiles", {"profile", "profiles"}},
        {"foods", {"own food", "own foods"}},
        {"recipes", {"recipe", "recipes"}},
        {"looseIngredients", {"ingredient without a recipe", "ingredients without a recipe"}},
        {"log", {"log entry", "log entries"}},
        {"weights", {"weight", "weights"}},
    };
    return Names.at(section);
}
} // namespace

QString SectionNames::Counted(const std::string& section, int rows) {
    const Name& name = NameOf(section);
    return ::Counted(rows, name.one, name.many);
}
