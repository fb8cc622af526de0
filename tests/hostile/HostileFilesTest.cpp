#include "hostile/HostileTest.h"

#include "core/Navigation.h"
#include "core/frmPrefs.h"
#include "core/frmWelcome.h"
#include "model/Profiles.h"
#include "model/User.h"
#include "runtime/AppPath.h"
#include "runtime/AppState.h"
#include "runtime/RuntimeError.h"
#include "runtime/ScreenTable.h"
#include "store/Connection.h"
#include "support/RunSize.h"

#include <QFile>
#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

#include <iostream>

namespace {
constexpr int FewFiles = 12;
constexpr unsigned Seed = 20261122;
constexpr int MostRows = 3;    ///< of one kind in one file
constexpr int Report = 500;    ///< files between two lines of output
constexpr int MostRemoved = 3; ///< from one list
constexpr const char* Files[] = {"users.mdb", "foods.mdb"};

/// The environment variable HALVANE_HOSTILE_FILES asks for more files than an ordinary run.
int FileCount() {
    return RunSize("HALVANE_HOSTILE_FILES", FewFiles);
}

unsigned FirstSeed() {
    return Seed + unsigned(qEnvironmentVariableIntValue("HALVANE_HOSTILE_SEED"));
}
} // namespace

/// The whole program over pairs of files whose tables hold rows of any kind.
class HostileFilesTest : public HostileTest {
protected:
    void SetUp() override {
        HostileTest::SetUp();
        OpenEmptyDatabases();
        CloseDatabases();
        for (const char* file : Files)
            ASSERT_TRUE(QFile::rename(FileBeside(QLatin1String(file)), Template(file)));
    }
    QString Template(const char* file) const {
        return Folder() + "/template-" + QLatin1String(file);
    }

    void OpenFiles() {
        UserDB().Open(FileBeside(QLatin1String(Files[0])), DatabaseKind::Users);
        FoodDB().Open(FileBeside(QLatin1String(Files[1])), DatabaseKind::Foods);
    }

    static void InsertWild(const HostileRows& rows, QRandomGenerator& random) {
        for (int left = random.bounded(MostRows + 1); left > 0; --left)
            rows.Insert(rows.Wild(random));
    }

    /// Every table holds rows of any kind, and some rows stand where a person meets them.
    void MakeFiles(unsigned seed) {
        for (const char* file : Files) {
            QFile::remove(FileBeside(QLatin1String(file)));
            ASSERT_TRUE(QFile::copy(Template(file), FileBeside(QLatin1String(file))));
        }
        OpenFiles();
        QRandomGenerator random(seed);
        AddUser();
        InsertWild({UserDB().Raw(), "profiles", {}}, random);
        InsertWild({UserDB().Raw(), "RDI", {}}, random);
        for (const Ground& ground : Grounds())
            InsertWild({ground.database().Raw(), ground.table, ground.sound}, random);
        if (random.bounded(3) == 0)
            UserDB().Raw().exec("DELETE FROM profiles WHERE UID = 1");
        CloseDatabases();
    }

    /// The program starts over these files.
    void StartAgain() {
        HostileTest::TearDown();
        HostileTest::SetUp();
        OpenFiles();
        App().AppStarted = true;
        App().AppInfo.AUTOUPDATERDI = true;
        if (const auto first = Profiles::First())
            User::Current() = *first;
        ShowHome();
    }

    void RemoveSome(const char* screen, const char* table, QWidget* (*button)(const ScreenForm*)) {
        const ScreenForm* shown = Show(screen);
        for (int left = MostRemoved; left > 0; --left)
            RemoveOne(QLatin1String(table), [&] { return button(shown); });
    }

    /// Without a user there is only the welcome.
    void UseAll() {
        if (User::Current().UID == -1)
            return frmWelcome::Open();
        ShowAll();
        ShowAllFacts();
        WithModal([](QWidget* shown) { Grab(shown); }, [] { frmPrefs().ShowModal(); });
        RemoveSome(Screens::Day.name, "USER_FOODS", &Trash);
        RemoveSome(Screens::RecipeManager.name, "Ingredients", &Trash);
        RemoveSome(Screens::FoodList.name, "FOODS",
                   [](const ScreenForm* foods) { return DeleteOf(foods, "FoodList"); });
        Show(Screens::Main.name);
    }
};

TEST_F(HostileFilesTest, EveryScreenOpensAndEveryLineCanBeRemoved) {
    for (int i = 0; i < FileCount() && !HasFailure(); ++i) {
        const unsigned seed = FirstSeed() + unsigned(i);
        SCOPED_TRACE("seed " + std::to_string(seed));
        MakeFiles(seed);
        try {
            StartAgain();
            EXPECT_EQ(EndingDuring([&] { UseAll(); }), QString());
        } catch (const RuntimeError& failure) {
            ADD_FAILURE() << failure.Description().toStdString();
        }
        EXPECT_TRUE(endings.isEmpty());
        if ((i + 1) % Report == 0 || i + 1 == FileCount())
            std::cout << i + 1 << " pairs of files" << std::endl;
    }
}
