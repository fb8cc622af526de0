#pragma once

#include "store/AmountRows.h"
#include "store/LogPieces.h"
#include "store/LogSums.h"

#include <mutex>
#include <optional>
#include <vector>

class LogPieceReader;
class Prepared;

/// One pass over a log in pieces: two threads take turns, and the one that asked adds the pieces
/// up in their order. What the other one cannot read, it reads itself, so only its own failures
/// count.
class LogPass {
public:
    LogPass(const LogRange& range, std::vector<LogPiece> pieces);

    /// With this statement; `file` is what the second thread opens, or empty if there is none.
    AmountSums Run(Prepared& statement, const QString& file);

private:
    void Help(const QString& file);
    void ReadAndAdd(LogPieceReader& reader);
    void AddRest(LogPieceReader& reader);
    std::optional<size_t> Take();
    void Keep(size_t piece, AmountRows rows);
    std::optional<AmountRows> NextKept();
    void AddKept();

    const LogRange& range_;
    std::vector<LogPiece> pieces_;
    AmountSums sums_;
    size_t added_ = 0; ///< pieces that are in the sums
    std::mutex mutex_; ///< of the two that follow
    size_t taken_ = 0;
    std::vector<std::optional<AmountRows>> kept_; ///< read, but not yet added
};
