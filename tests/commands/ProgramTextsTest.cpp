#include "CommandTest.h"

#include "commands/CommandOutline.h"
#include "commands/Commands.h"
#include "commands/Progress.h"
#include "commands/Session.h"
#include "support/Places.h"

#include <QFile>
#include <QProcess>

#include <sstream>

#include <CLI/CLI.hpp>

/// The man page, the completions of the shells and the help are one text in four forms.
class ProgramTextsTest : public CommandTest {
protected:
    static QByteArray Delivered(const char* name) {
        QFile file(Places::Build(QStringLiteral("/delivered/")) + QLatin1String(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }
    static std::vector<CommandOutline> Outline() {
        std::ostringstream none;
        Session session(none, none);
        CLI::App program("Records", "halvane-data");
        for (const auto add : Commands::All)
            add(program, session);
        return CommandOutline::Of(program);
    }
    static QByteArray Output(const QString& program, const QStringList& arguments, int code = 0) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), code) << process.readAllStandardError().constData();
        EXPECT_EQ(process.readAllStandardError(), "");
        return process.readAllStandardOutput();
    }
    /// What bash offers behind these words.
    static QByteArrayList Offered(const QString& words) {
        const QString script = Places::Build(QStringLiteral("/delivered/halvane-data.bash"));
        return Output(QStringLiteral("/bin/bash"),
                      {"-c", "source " + script + "; COMP_WORDS=(" + words +
                                 "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _halvane_data; "
                                 "printf '%s\\n' \"${COMPREPLY[@]}\""})
            .trimmed()
            .split('\n');
    }
    /// What zsh offers behind these words, a line an offer.
    static QByteArray OfferedByZsh(const QString& words) {
        const QString script = Places::Build(QStringLiteral("/delivered/_halvane-data"));
        return Output(QStringLiteral("zsh"),
                      {"-f", "-c",
                       "_files() { print files }; compadd() { print -- $@ };"
                       "_describe() { for offer in ${(P)2}; print -- $2 $offer };"
                       "words=(" +
                           words + "); CURRENT=$#words; source " + script});
    }
};

TEST_F(ProgramTextsTest, EachHoldsEveryCommandAndOption) {
    const QByteArray man = Delivered("halvane-data.1").replace("\\-", "-");
    const QByteArray bash = Delivered("halvane-data.bash");
    const QByteArray zsh = Delivered("_halvane-data");
    for (const CommandOutline& command : Outline()) {
        const QByteArray name = QByteArray::fromStdString(command.name);
        const QByteArray heading = ".SS \"" + name;
        const QByteArray place = '"' + name + "\")";
        EXPECT_TRUE(name.isEmpty() || man.contains(heading)) << name.constData();
        EXPECT_TRUE(bash.contains(place)) << name.constData();
        EXPECT_TRUE(zsh.contains(place)) << name.constData();
        for (const OptionOutline& option : command.options)
            for (const QByteArray& text : {man, bash, zsh})
                EXPECT_TRUE(text.contains(option.name.c_str()) ||
                            (option.IsArgument() && text != man))
                    << option.name;
    }
}

TEST_F(ProgramTextsTest, ManShowsThePageWithoutAComplaint) {
    const QByteArray page = Output(
        QStringLiteral("man"), {"--warnings", "-l", Places::Build("/delivered/halvane-data.1")});
    for (const char* text :
         {"NAME", "halvane-data - ", "search WORDS", "EXIT STATUS", "--folder TEXT"})
        EXPECT_TRUE(page.contains(text)) << text << page.constData();
}

TEST_F(ProgramTextsTest, BashOffersCommandsOptionsAndNothingTwice) {
    EXPECT_EQ(Offered("halvane-data sea"), QByteArrayList{"search"});
    EXPECT_EQ(Offered("halvane-data --folder search sea"), QByteArrayList{"search"});
    EXPECT_EQ(Offered("halvane-data import --dr"), QByteArrayList{"--dry-run"});
    EXPECT_EQ(Offered("halvane-data import --js"), QByteArrayList{"--json"});
    EXPECT_EQ(Offered("halvane-data search --dr"), QByteArrayList{""});
    EXPECT_EQ(Offered("halvane-data export --folder ''"), QByteArrayList{""});
}

TEST_F(ProgramTextsTest, ZshOffersTheSameWithWhatItMeans) {
    EXPECT_TRUE(OfferedByZsh("halvane-data ''").contains("commands search:Finds foods"));
    EXPECT_TRUE(OfferedByZsh("halvane-data import ''").contains("options --dry-run:Tell what"));
    EXPECT_FALSE(OfferedByZsh("halvane-data search ''").contains("--dry-run"));
    EXPECT_EQ(OfferedByZsh("halvane-data log --serving ''"), "A B\n");
    EXPECT_EQ(OfferedByZsh("halvane-data export --folder ''"), "files\n");
}

TEST_F(ProgramTextsTest, EveryCommandShowsAnExampleOfItself) {
    const auto outline = Outline();
    for (size_t i = 1; i < outline.size(); ++i) {
        const size_t example = outline[i].footer.find("Example");
        ASSERT_NE(example, std::string::npos) << outline[i].name;
        EXPECT_NE(outline[i].footer.find("halvane-data " + outline[i].name, example),
                  std::string::npos)
            << outline[i].name;
    }
}

TEST_F(ProgramTextsTest, TheHelpPageNamesEveryCommand) {
    QFile page(Places::Source(QStringLiteral("/data/help/your-data.html")));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    for (const CommandOutline& command : Outline()) {
        const QString named = "<code>" + QString::fromStdString(command.name);
        EXPECT_TRUE(text.contains(named)) << command.name;
    }
}

TEST_F(ProgramTextsTest, ProgressIsToldOnceATime) {
    std::ostringstream out;
    std::ostringstream error;
    const Session session(out, error);
    Progress slow(session, "Exporting");
    slow.Step(1, 2);
    EXPECT_EQ(error.str(), "");
    Progress fast(session, "Exporting", std::chrono::milliseconds(0));
    fast.Step(1, 4);
    fast.Step(0, 0);
    EXPECT_EQ(error.str(), "halvane-data: Exporting, 25 %\n");
    EXPECT_EQ(out.str(), "");
}
