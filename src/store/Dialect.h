#pragma once

#include <QString>

/// The program's statements use a dialect of SQL. This is the only place that adapts them to the
/// store: `TOP n` becomes a LIMIT, `#m/d/yyyy#` an ISO text, a comparison with a text ignores case,
/// and an updatable result set gets a row handle as its first column. It works on tokens: quoted
/// text never changes, and what it cannot read passes unchanged, for the store to refuse. A
/// statement with a comment is refused (-1), because the comment would hide what follows.
namespace Dialect {
inline constexpr auto RowHandle = "__row__"; ///< name of the handle column

struct Statement {
    QString sql;
    QString table; ///< the table of an updatable set; empty for one that only reads
};

Statement Adapt(const QString& source, bool updatable);

} // namespace Dialect
