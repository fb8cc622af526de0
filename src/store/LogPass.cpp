#include "store/LogPass.h"

#include "store/LogPieceReader.h"
#include "store/Prepared.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <future>
#include <utility>

LogPass::LogPass(const LogRange& range, std::vector<LogPiece> pieces)
    : range_(range)
    , pieces_(std::move(pieces))
    , sums_(static_cast<size_t>(range.columns.size()))
    , kept_(pieces_.size()) {}

/// Where no thread can be started, the help comes when there is nothing left to read.
AmountSums LogPass::Run(Prepared& statement, const QString& file) {
    std::future<void> help;
    if (!file.isEmpty() && pieces_.size() > 1)
        help = std::async([this, &file] { Help(file); });
    LogPieceReader reader(statement, range_);
    ReadAndAdd(reader);
    if (help.valid())
        help.wait();
    AddRest(reader);
    return sums_;
}

/// Nothing is lost if this fails: it reads no longer.
void LogPass::Help(const QString& file) {
    try {
        SQLite::Database database(file.toStdString(), SQLite::OPEN_READONLY | SQLite::OPEN_NOMUTEX);
        AmountRows::Register(database.getHandle());
        const SQLite::Transaction reading(database);
        Prepared statement(database.getHandle(), file, LogPieceReader::SQL(range_).toUtf8());
        LogPieceReader reader(statement, range_);
        while (const std::optional<size_t> piece = Take())
            Keep(*piece, reader.Read(pieces_[*piece]));
    } catch (const std::exception&) {
    }
}

void LogPass::ReadAndAdd(LogPieceReader& reader) {
    while (const std::optional<size_t> piece = Take()) {
        Keep(*piece, reader.Read(pieces_[*piece]));
        AddKept();
    }
}

/// What the second thread has read last, and what it has failed to read.
void LogPass::AddRest(LogPieceReader& reader) {
    for (AddKept(); added_ < pieces_.size(); AddKept())
        Keep(added_, reader.Read(pieces_[added_]));
}

std::optional<size_t> LogPass::Take() {
    const std::lock_guard lock(mutex_);
    return taken_ < pieces_.size() ? std::optional(taken_++) : std::nullopt;
}

void LogPass::Keep(size_t piece, AmountRows rows) {
    const std::lock_guard lock(mutex_);
    kept_[piece] = std::move(rows);
}

std::optional<AmountRows> LogPass::NextKept() {
    const std::lock_guard lock(mutex_);
    return added_ < kept_.size() ? std::exchange(kept_[added_], std::nullopt) : std::nullopt;
}

void LogPass::AddKept() {
    while (const std::optional<AmountRows> rows = NextKept()) {
        sums_.Add(*rows);
        ++added_;
    }
}
