#pragma once

#include "store/AmountRows.h"
#include "store/LogSums.h"

class Prepared;
struct LogPiece;

/// Reads pieces of a log with a statement, which may be prepared on any connection to its file.
class LogPieceReader {
public:
    static QString SQL(const LogRange& range);

    LogPieceReader(Prepared& statement, const LogRange& range)
        : statement_(statement)
        , range_(range) {}
    AmountRows Read(const LogPiece& piece);

private:
    Prepared& statement_;
    const LogRange& range_;
};
