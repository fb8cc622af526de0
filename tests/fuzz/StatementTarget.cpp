#include "fuzz/Scratch.h"
#include "fuzz/Target.h"

#include "runtime/Attempt.h"
#include "store/Connection.h"
#include "store/Dialect.h"
#include "store/DialectTokens.h"
#include "store/StatementCache.h"

#include <sqlite3.h>

namespace {
/// No token is lost, so the store sees all that was written.
void SplitAndJoin(const QString& source) {
    QString joined;
    for (const DialectTokens::Token& token : DialectTokens::Split(source))
        joined += token.blank.toString() + token.text.toString();
    Expect(joined == source);
}

void Prepare(const QString& source, bool updatable) {
    Attempt([&] {
        const auto query = UserDB().Statements().Read(source, updatable);
        Expect(sqlite3_stmt_readonly(query.statement.Handle()) != 0);
        Expect(query.statement.Shape()->Count() > 0);
    });
}
} // namespace

/// A statement of a result set is refused, or it only reads.
void Fuzz(const std::string& bytes) {
    Scratch::OpenRecords();
    const QString source = QString::fromStdString(bytes);
    SplitAndJoin(source);
    Prepare(source, false);
    Prepare(source, true);
}
