#include "CommandTest.h"

#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/Progress.h"
#include "commands/Session.h"
#include "commands/Waiting.h"
#include "support/Places.h"

#include <QFile>
#include <QProcess>

#include <atomic>
#include <sstream>

namespace {
/// Another thread writes; it is read when that thread has ended.
class LinesOf : public std::streambuf {
public:
    void WaitFor(int lines) {
        for (int count = 0; (count = count_) < lines;)
            count_.wait(count);
    }
    std::string text;

protected:
    int overflow(int character) override {
        text += char(character);
        if (character == '\n') {
            ++count_;
            count_.notify_all();
        }
        return character;
    }

private:
    std::atomic<int> count_ = 0;
};
} // namespace

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
        const CommandLine line("halvane-data", "Records", session);
        for (const auto add : Commands::All)
            add(line.Program(), session);
        return line.Outline();
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
         {"NAME", "halvane-data - ", "search WORDS", "EXIT STATUS", "--folder FOLDER"})
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

TEST_F(ProgramTextsTest, EveryHelpShowsTheOptionsOfAllCommandsAndFitsATerminal) {
    constexpr qsizetype width = 80;
    for (const CommandOutline& command : Outline()) {
        const QStringList words =
            QString::fromStdString(command.name).split(u' ', Qt::SkipEmptyParts);
        const Run help = Command(words + QStringList{"--help"});
        EXPECT_EQ(help.code, Done) << command.name;
        for (const char* option : {"--folder FOLDER", "--profile NAME", "--json", "-h, --help"})
            EXPECT_EQ(help.out.count(QLatin1String(option)), 1) << command.name << option;
        for (const QString& line : help.out.split(u'\n'))
            EXPECT_TRUE(line.size() <= width || line.startsWith("Example: ")) << line.toStdString();
    }
}

TEST_F(ProgramTextsTest, TheHelpSaysHowACommandIsCalled) {
    EXPECT_TRUE(
        Command({"log", "--help"}).out.contains("\nUsage: halvane-data log [OPTIONS] FOOD..."));
    EXPECT_TRUE(Command({"backup", "--help"}).out.contains("halvane-data backup [OPTIONS] [TO]\n"));
    EXPECT_TRUE(Command({"--help"}).out.contains("Usage: halvane-data [OPTIONS] COMMAND\n"));
    EXPECT_TRUE(Command({"recipes", "--help"}).out.contains("\nCommands:\n  export "));
}

TEST_F(ProgramTextsTest, TheVersionIsToldAndIsNoOptionOfACommand) {
    const Run version = Command({"--version"});
    EXPECT_EQ(version.code, Done);
    EXPECT_EQ(version.out, "halvane-data " HALVANE_VERSION "\n");
    EXPECT_FALSE(Command({"log", "--help"}).out.contains("--version"));
}

TEST_F(ProgramTextsTest, WhatIsWrittenWronglyIsNamed) {
    const std::pair<QStringList, const char*> calls[] = {
        {{"frobnicate"},
         "There is no command \"frobnicate\". `halvane-data --help` lists the commands."},
        {{}, "Please name a command. `halvane-data --help` lists the commands."},
        {{"recipes", "cook"},
         "There is no command \"cook\". `halvane-data recipes --help` lists the commands."},
        {{"show", "--frob"},
         "There is no option \"--frob\". `halvane-data show --help` shows how it is used."},
        {{"backup", "a", "b"},
         "\"b\" is one argument too many. `halvane-data backup --help` shows how it is used."},
        {{"show", "--folder"},
         "--folder needs a value. `halvane-data show --help` shows how it is used."},
        {{"show", "--folder", "a", "--folder", "b"},
         "--folder can be given only once. `halvane-data show --help` shows how it is used."},
        {{"log", "oats", "-m", "brunch"},
         "--meal: \"brunch\" is not a meal. Write Breakfast, Lunch, Dinner or Snacks. "
         "`halvane-data log --help` shows how it is used."},
        {{"search"}, "WORDS is required. `halvane-data search --help` shows how it is used."},
        {{"table", "spoons"},
         "TABLE: \"spoons\" is not one of log, days, weights, foods, recipes, profile. "
         "`halvane-data table --help` shows how it is used."},
    };
    for (const auto& [arguments, message] : calls) {
        const Run run = Command(arguments);
        EXPECT_EQ(run.code, Usage);
        EXPECT_EQ(run.error.toStdString(), std::string("halvane-data: ") + message + '\n');
        EXPECT_EQ(run.out, "");
    }
}

TEST_F(ProgramTextsTest, WordsOfAListMayBeInCapitals) {
    EXPECT_EQ(Command({"table", "Profile", "--format", "JSON"}).out,
              Command({"table", "profile", "--format", "json"}).out);
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

TEST_F(ProgramTextsTest, WhereNobodyKnowsHowFarItIsTheTimeIsTold) {
    LinesOf lines;
    std::ostringstream out;
    std::ostream error(&lines);
    const Session session(out, error);
    { const Waiting brief(session, "Checking", std::chrono::hours(1)); }
    EXPECT_EQ(lines.text, "");
    {
        const Waiting waiting(session, "Checking", std::chrono::milliseconds(1));
        lines.WaitFor(2);
    }
    EXPECT_EQ(lines.text.rfind("halvane-data: Checking, 0 s\nhalvane-data: Checking, 0 s\n", 0), 0);
    EXPECT_EQ(out.str(), "");
}
