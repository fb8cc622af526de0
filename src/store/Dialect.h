#pragma once

#include <QString>

/// The statements of the program are written in a dialect of SQL. They are adapted to the store
/// here and nowhere else: `TOP n` becomes a LIMIT, `#m/d/yyyy#` an ISO text, a comparison with a
/// text literal ignores case, and an updatable result set gets its row handle as an extra first
/// column. It reads tokens: text inside quotes is never touched, and what it cannot read is handed
/// on unchanged for the store to refuse. The dialect has no comments: a statement with one is
/// refused (-1), or it would hide what stands behind it.
namespace Dialect {
inline constexpr auto RowHandle = "__row__"; ///< name of the handle column

struct Statement {
    QString sql;
    QString table; ///< the table of an updatable set; empty for one that only reads
};

Statement Adapt(const QString& source, bool updatable);

} // namespace Dialect
