#include "exchange/Schema.h"

#include "exchange/SchemaSteps.h"
#include "exchange/Secrets.h"

#include <stdexcept>

namespace exchange::Schema {
namespace {
/// The row of the step comes first: a second server waits for it, and then finds it.
void Take(Connection& connection, int number, SchemaSteps::Step step) {
    Transaction transaction(connection);
    transaction.Unhurry();
    if (connection.Change("INSERT INTO schema_steps (Step) VALUES (:n) ON CONFLICT DO NOTHING",
                          soci::use(number)) == 0)
        return;
    step(connection);
    transaction.Commit();
}

void EnsureSalt(Connection& connection) {
    const auto salt = Secrets::RandomToken();
    connection.Change("INSERT INTO settings (Name, Value) VALUES ('salt', :v)"
                      " ON CONFLICT DO NOTHING",
                      soci::use(salt));
}

void EnsureStepTable(Connection& connection) {
    connection.Once("CREATE TABLE IF NOT EXISTS schema_steps (Step INTEGER NOT NULL PRIMARY KEY)");
}

int LastStep(Connection& connection) {
    int step = 0;
    soci::indicator indicator = soci::i_ok;
    try {
        connection.First("SELECT MAX(Step) FROM schema_steps", soci::into(step, indicator));
    } catch (const soci::soci_error&) {
        connection.Once("SELECT 1"); // fails, too, unless only the tables are missing
        return 0;
    }
    return indicator == soci::i_null ? 0 : step;
}
} // namespace

void BringUpToDate(Connection& connection) {
    EnsureStepTable(connection);
    int number = 0;
    for (const auto step : SchemaSteps::All())
        Take(connection, ++number, step);
    EnsureSalt(connection);
}

void Check(Connection& connection) {
    if (LastStep(connection) < static_cast<int>(SchemaSteps::All().size()))
        throw std::runtime_error(
            "the tables are not up to date; start the server, which updates them");
}

} // namespace exchange::Schema
