#include "commands/PeriodOption.h"

#include "commands/DateOption.h"
#include "commands/UsageError.h"

void PeriodOption::AddTo(const Command& command, const std::string& of) {
    DateOption::Add(command, "--from", given_.from, "The first day of the " + of);
    DateOption::Add(command, "--to", given_.to, "The last day of the " + of);
}

Period PeriodOption::Chosen(const Period& otherwise) const {
    const Period chosen{given_.from.isValid() ? given_.from : otherwise.from,
                        given_.to.isValid() ? given_.to : otherwise.to};
    if (chosen.to < chosen.from)
        throw UsageError("--to", "The last day is before the first.");
    return chosen;
}
