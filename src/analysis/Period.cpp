#include "analysis/Period.h"

#include "runtime/Dates.h"

QString Period::Condition() const {
    return "UDate Between #" + Dates::ShortText(from) + "# AND #" + Dates::ShortText(to) + "#";
}
