#pragma once

#include "records/tables/TableWriter.h"

#include <QTemporaryDir>

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

/// Writes a workbook with one sheet: days and numbers as such, the head frozen. The rows are kept
/// in a file beside it, so a long table needs little memory; the sink gets the workbook at the end.
class XlsxWriter : public TableWriter {
public:
    XlsxWriter(const QString& title, Sink sink);
    ~XlsxWriter() override;

    void Head(const std::vector<TableColumn>& columns) override;
    void Row(const std::vector<Cell>& cells) override;
    void End() override; ///< fails where the rows are too many for a sheet

private:
    void Put(std::uint16_t column, const Cell& cell);
    void PutText(std::uint16_t column, const std::string& text);
    void PutDay(std::uint16_t column, QDate day);
    void HandOver() const;
    std::string Path() const;

    Sink sink_;
    QTemporaryDir folder_;
    lxw_workbook* workbook_ = nullptr;
    lxw_worksheet* sheet_ = nullptr;
    lxw_format* bold_ = nullptr;
    lxw_format* date_ = nullptr;
    std::uint32_t row_ = 0;
};
