#pragma once

#include "records/tables/TableWriter.h"

/// Writes an array with an object for each row; what is not known is null.
class JsonWriter : public TableWriter {
public:
    JsonWriter(const QString& title, Sink sink);

    void Head(const std::vector<TableColumn>& columns) override;
    void Row(const std::vector<Cell>& cells) override;
    void End() override;

    static std::string Text(const std::string& text); ///< in quotes, escaped

private:
    Sink sink_;
    std::vector<std::string> keys_; ///< with what stands before and behind them
    bool first_ = true;
};
