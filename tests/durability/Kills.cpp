#include "durability/KilledWork.h"
#include "durability/Promises.h"
#include "durability/SmallRecords.h"
#include "durability/WholeWork.h"
#include "durability/WindowWork.h"

#include "core/Application.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>
#include <optional>

#include <unistd.h>

namespace {

constexpr int KillsAFolder = 25;
constexpr int MostLines = 26; ///< twice round
constexpr int MostMilliseconds = 40;
constexpr int WholeShare = 20; ///< percent of the kills
constexpr int TellEvery = 500;

/// The kills of a run. Every 25 of the windows have a fresh folder.
class Kills {
public:
    Kills(Application& application, quint32 seed)
        : application_(application)
        , random_(seed) {
        clock_.start();
        SmallRecords::LayOut(ground_.path());
        whole_ = WholeWork::All(ground_.path());
    }

    bool Run(int count) {
        bool kept = true;
        for (done_ = 0; done_ < count && kept; ++done_) {
            if (done_ > 0 && done_ % TellEvery == 0)
                Tell();
            kept = random_.bounded(100) < WholeShare ? KillWhole() : KillWindows();
        }
        return kept;
    }

    void Tell() const {
        std::printf("%d kills in %lld s; of the windows %d, %d in the middle of a write; "
                    "acknowledged%s\n",
                    done_, clock_.elapsed() / 1000, windowKills_, inTheMiddle_,
                    Promises::Totals().constData());
        for (const auto& work : whole_)
            std::printf("%s: %d kills, after %d all was done\n", work->Name(), work->Kills(),
                        work->Finished());
        std::fflush(stdout);
    }

private:
    bool KillWhole() {
        WholeWork& work = *whole_[random_.bounded(quint32(whole_.size()))];
        const bool kept = work.Kill(random_);
        if (!kept)
            std::printf("finding: %s was done in part, kill %d\n", work.Name(), done_ + 1);
        return kept;
    }

    void BeginFolder() {
        folder_.emplace();
        promises_ = {};
        for (const QString& file : QDir(ground_.path()).entryList(QDir::Files))
            QFile::copy(ground_.filePath(file), folder_->filePath(file));
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_->path());
        SetRegValue(Settings::Agreement, QStringLiteral("YES"));
        SetRegValue(Settings::Fast, QStringLiteral("True"));
    }

    bool KillWindows() {
        if (windowKills_++ % KillsAFolder == 0)
            BeginFolder();
        KilledWork work(folder_->path(), [this](int acknowledge) { UseWindows(acknowledge); });
        promises_.TakeDown(work.KillAtRandom(random_, MostLines, MostMilliseconds));
        inTheMiddle_ += SmallRecords::StandAlone(folder_->path()) ? 0 : 1;
        SmallRecords::OpenBoth(folder_->path());
        const QByteArrayList broken = promises_.Broken();
        SmallRecords::CloseBoth();
        for (const QByteArray& line : broken)
            std::printf("finding: %s, kill %d\n", line.constData(), done_ + 1);
        return broken.isEmpty();
    }

    void UseWindows(int acknowledge) {
        WindowWork(application_, folder_->path(), [acknowledge](const char* kind, int number) {
            const QByteArray line = QByteArray(kind) + ' ' + QByteArray::number(number) + '\n';
            if (write(acknowledge, line.constData(), size_t(line.size())) != line.size())
                _exit(2);
        }).GoOnFrom(promises_.Next());
    }

    Application& application_;
    QRandomGenerator random_;
    QElapsedTimer clock_;
    QTemporaryDir ground_;
    std::vector<std::unique_ptr<WholeWork>> whole_;
    std::optional<QTemporaryDir> folder_;
    Promises promises_;
    int done_ = 0;
    int windowKills_ = 0;
    int inTheMiddle_ = 0;
};

} // namespace

/// kills COUNT [SEED]: kills the program so often at random moments while it writes, and looks
/// after each kill whether what it acknowledged is there. TMPDIR says where; a folder in memory is
/// fast.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false"); // what the platform does not do
    const QTemporaryDir home;
    for (const char* place : {"HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        qputenv(place, home.path().toLocal8Bit());
    Application application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int count = arguments.value(1, QStringLiteral("200")).toInt();
    const quint32 seed = arguments.value(2, QStringLiteral("1")).toUInt();
    std::printf("the seed is %u\n", seed);
    Kills kills(application, seed);
    const bool kept = kills.Run(count);
    kills.Tell();
    std::printf("%s\n", kept ? "nothing was lost" : "something was lost");
    return kept ? 0 : 1;
}
