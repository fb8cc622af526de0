#include "records/tables/XlsxWriter.h"

#include "records/tables/CellText.h"
#include "runtime/RuntimeError.h"
#include "runtime/Utf8.h"

#include <QFile>

#include <algorithm>

#include <xlsxwriter.h>

namespace {
constexpr std::uint32_t MostRows = LXW_ROW_MAX;
constexpr qsizetype LongestText = 32767;
constexpr qint64 PartSize = 1 << 20;
constexpr double NarrowestColumn = 11;
const QDate FirstDay(1900, 1, 1); ///< that a workbook can hold as a date

void Require(lxw_error result) {
    if (result != LXW_NO_ERROR)
        throw RuntimeError(ErrorNumber::FileAccess,
                           QStringLiteral("The workbook cannot be written: ") +
                               QString::fromUtf8(lxw_strerror(result)) + u'.');
}

/// The library takes text up to the first NUL, and of a limited length.
std::string Storable(const std::string& text) {
    if (qsizetype(text.size()) <= LongestText && text.find('\0') == text.npos)
        return text;
    return Utf8::Text(text).remove(QChar::Null).left(LongestText).toStdString();
}
} // namespace

XlsxWriter::XlsxWriter(const QString& title, Sink sink)
    : sink_(std::move(sink)) {
    std::string temporary = folder_.path().toStdString();
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = temporary.data();
    workbook_ = workbook_new_opt(Path().c_str(), &options);
    sheet_ = workbook_ ? workbook_add_worksheet(workbook_, title.toUtf8().constData()) : nullptr;
    if (!sheet_)
        throw RuntimeError(ErrorNumber::FileAccess,
                           QStringLiteral("There is no room for the workbook's temporary files."));
    bold_ = workbook_add_format(workbook_);
    format_set_bold(bold_);
    date_ = workbook_add_format(workbook_);
    format_set_num_format(date_, "yyyy-mm-dd");
}

XlsxWriter::~XlsxWriter() {
    if (workbook_)
        workbook_close(workbook_); // it goes with the temporary folder
}

std::string XlsxWriter::Path() const {
    return folder_.filePath(QStringLiteral("table.xlsx")).toStdString();
}

void XlsxWriter::Head(const std::vector<TableColumn>& columns) {
    worksheet_freeze_panes(sheet_, 1, 0);
    for (std::uint16_t i = 0; i < columns.size(); ++i) {
        const std::string caption = columns[i].Caption().toStdString();
        worksheet_set_column(sheet_, i, i, std::max(NarrowestColumn, double(caption.size())),
                             nullptr);
    }
    for (std::uint16_t i = 0; i < columns.size(); ++i)
        Require(
            worksheet_write_string(sheet_, 0, i, columns[i].Caption().toUtf8().constData(), bold_));
}

void XlsxWriter::Row(const std::vector<Cell>& cells) {
    if (++row_ >= MostRows)
        throw RuntimeError(ErrorNumber::Overflow,
                           QStringLiteral("The table has more rows than a workbook can hold. "
                                          "Choose a shorter period or another format."));
    for (std::uint16_t i = 0; i < cells.size(); ++i)
        Put(i, cells[i]);
}

void XlsxWriter::Put(std::uint16_t column, const Cell& cell) {
    if (const auto* number = std::get_if<double>(&cell))
        Require(worksheet_write_number(sheet_, row_, column, *number, nullptr));
    else if (const auto* text = std::get_if<std::string>(&cell))
        PutText(column, *text);
    else if (const auto* day = std::get_if<QDate>(&cell))
        PutDay(column, *day);
}

void XlsxWriter::PutText(std::uint16_t column, const std::string& text) {
    Require(worksheet_write_string(sheet_, row_, column, Storable(text).c_str(), nullptr));
}

void XlsxWriter::PutDay(std::uint16_t column, QDate day) {
    if (day < FirstDay)
        return PutText(column, CellText::Iso(day));
    lxw_datetime date{};
    date.year = day.year();
    date.month = day.month();
    date.day = day.day();
    Require(worksheet_write_datetime(sheet_, row_, column, &date, date_));
}

void XlsxWriter::End() {
    Require(workbook_close(std::exchange(workbook_, nullptr)));
    HandOver();
}

void XlsxWriter::HandOver() const {
    QFile file(QString::fromStdString(Path()));
    if (file.open(QIODevice::ReadOnly))
        for (QByteArray part; !(part = file.read(PartSize)).isEmpty();)
            sink_({part.constData(), size_t(part.size())});
    if (!file.isOpen() || !file.atEnd())
        throw RuntimeError(ErrorNumber::FileAccess,
                           QStringLiteral("The workbook cannot be read back."));
}
