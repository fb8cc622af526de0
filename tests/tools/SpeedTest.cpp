#include "support/HalvaneTest.h"
#include "support/Places.h"

#include <QFile>
#include <QProcess>

/// Runs the script that compares two measurements of the benchmarks.
class SpeedTest : public HalvaneTest {
protected:
    QString Written(const char* name, const QByteArray& rows, const QByteArray& processor = "one") {
        const QString path = Folder() + u'/' + QLatin1String(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"({"machine": {"processor": ")" + processor + R"("}, "rows": [)" + rows + "]}");
        return path;
    }
    static QByteArray Row(const char* work, double ours, double limit = 0) {
        return R"({"unit": "ms", "aim": 2, "work": ")" + QByteArray(work) + R"(", "ours": )" +
               QByteArray::number(ours) +
               (limit > 0 ? R"(, "limit": )" + QByteArray::number(limit) : QByteArray()) + '}';
    }
    QString Run(const QStringList& arguments) {
        QProcess script;
        script.start("python3", QStringList{Places::Source("/bench/speed.py")} + arguments);
        EXPECT_TRUE(script.waitForFinished());
        exitCode_ = script.exitCode();
        return QString::fromUtf8(script.readAllStandardOutput());
    }
    QString Compared(const QByteArray& before, const QByteArray& after) {
        return Run({"compare", Written("old.json", before), Written("new.json", after)});
    }

    int exitCode_ = -1;
};

TEST_F(SpeedTest, WhatTakesATenthLongerIsNotNamed) {
    EXPECT_EQ(Compared(Row("search", 10, 5), Row("search", 11, 5)),
              "Nothing got slower by more than a tenth.\n");
    EXPECT_EQ(exitCode_, 0);
}

TEST_F(SpeedTest, WhatTakesMoreThanATenthLongerIsNamed) {
    EXPECT_EQ(Compared(Row("search", 10, 5) + ',' + Row("start", 100),
                       Row("search", 12, 5) + ',' + Row("start", 111)),
              "slower: search: 10 -> 12 ms\nslower: start: 100 -> 111 ms\n");
    EXPECT_EQ(exitCode_, 1);
}

TEST_F(SpeedTest, WhatIsSlowerAsItsLimitIsComesFromTheMachine) {
    EXPECT_EQ(Compared(Row("search", 10, 5), Row("search", 20, 10)),
              "Nothing got slower by more than a tenth.\n");
}

TEST_F(SpeedTest, WhatIsNoLongerMeasuredIsNamed) {
    EXPECT_EQ(Compared(Row("search", 10) + ',' + Row("start", 10), Row("search", 10)),
              "no longer measured: start\n");
    EXPECT_EQ(exitCode_, 1);
}

TEST_F(SpeedTest, TwoMachinesAreToldApart) {
    const QString said = Run({"compare", Written("old.json", Row("search", 10)),
                              Written("new.json", Row("search", 10), "other")});
    EXPECT_TRUE(said.startsWith("The two were measured on different machines"));
}

TEST_F(SpeedTest, TheTableHasALineForEachWork) {
    EXPECT_EQ(Run({"table", Written("one.json", Row("search", 10, 4) + ',' + Row("start", 120))}),
              "| work | unit | ours | limit | ratio |\n|---|---|---:|---:|---:|\n"
              "| search | ms | 10 | 4 | 2.5 |\n| start | ms | 120 |  |  |\n");
}

TEST_F(SpeedTest, OtherArgumentsAreRefused) {
    Run({"compare", "one"});
    EXPECT_EQ(exitCode_, 2);
}
