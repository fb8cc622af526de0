#include "records/tables/XlsxWriter.h"

#include "runtime/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {
class XlsxWriterTest : public ::testing::Test {
protected:
    /// Writes the rows below the head `Date`, `Food`, `Amount (g)`, and unpacks the workbook.
    void Write(const std::vector<std::vector<Cell>>& rows) {
        QFile file(folder_.filePath("table.xlsx"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        XlsxWriter writer("Log", [&file](std::string_view bytes) {
            file.write(bytes.data(), qint64(bytes.size()));
        });
        writer.Head({{"Date", "", "date"}, {"Food", "", "food"}, {"Amount", "g", "amount"}});
        for (const std::vector<Cell>& row : rows)
            writer.Row(row);
        writer.End();
        file.close();
        QProcess unpack;
        unpack.setWorkingDirectory(folder_.path());
        unpack.start("cmake", {"-E", "tar", "xf", "table.xlsx"});
        ASSERT_TRUE(unpack.waitForFinished());
        ASSERT_EQ(unpack.exitCode(), 0);
    }
    QByteArray Part(const QString& name) const {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }
    struct Found {
        QString type, style, value;
    };
    Found CellNamed(const QString& place) const {
        QXmlStreamReader xml(Part("xl/worksheets/sheet1.xml"));
        while (!xml.atEnd())
            if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"c" &&
                xml.attributes().value("r") == place) {
                const QString type = xml.attributes().value("t").toString();
                const QString style = xml.attributes().value("s").toString();
                return {type, style, xml.readElementText(QXmlStreamReader::IncludeChildElements)};
            }
        return {};
    }

    QTemporaryDir folder_;
};
} // namespace

TEST_F(XlsxWriterTest, NumbersAndDaysAreNoTexts) {
    Write({{QDate(2026, 3, 2), std::string("Oats"), 1.0 / 3}});
    EXPECT_EQ(CellNamed("C2").type, "");
    EXPECT_EQ(CellNamed("C2").value.toDouble(), 1.0 / 3);
    EXPECT_EQ(CellNamed("A2").type, "");
    EXPECT_EQ(CellNamed("A2").value.toInt(), QDate(1899, 12, 30).daysTo(QDate(2026, 3, 2)));
    EXPECT_NE(CellNamed("A2").style, "");
    EXPECT_TRUE(Part("xl/styles.xml").contains("yyyy-mm-dd"));
}

TEST_F(XlsxWriterTest, TheHeadHasUnitsAndIsFrozen) {
    Write({});
    EXPECT_EQ(CellNamed("C1").value, "Amount (g)");
    EXPECT_TRUE(Part("xl/worksheets/sheet1.xml").contains("state=\"frozen\""));
    EXPECT_TRUE(Part("xl/workbook.xml").contains("name=\"Log\""));
}

TEST_F(XlsxWriterTest, WhatIsNotKnownHasNoCell) {
    Write({{Cell(), std::string("Oats"), Cell()}});
    EXPECT_EQ(CellNamed("C2").value, "");
    EXPECT_FALSE(Part("xl/worksheets/sheet1.xml").contains("r=\"C2\""));
}

TEST_F(XlsxWriterTest, ATextIsNeverAFormula) {
    Write({{Cell(), std::string("=1+1 & <x>"), Cell()}});
    EXPECT_EQ(CellNamed("B2").type, "inlineStr");
    EXPECT_EQ(CellNamed("B2").value, "=1+1 & <x>");
}

TEST_F(XlsxWriterTest, ADayBeforeTheFirstOfAWorkbookIsAText) {
    Write({{QDate(1899, 12, 31), Cell(), Cell()}});
    EXPECT_EQ(CellNamed("A2").value, "1899-12-31");
}

TEST_F(XlsxWriterTest, ATextThatNoCellCanHoldIsCut) {
    const std::string mark = "\xEF\xBB\xBF"; // a part of the text
    Write({{Cell(), mark + std::string(3, '\0') + std::string(40000, 'x'), Cell()}});
    EXPECT_EQ(CellNamed("B2").value, QChar(0xFEFF) + QString(32766, u'x'));
}
