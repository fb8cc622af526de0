#include "core/CoreTest.h"

#include "core/Flow.h"
#include "core/HeldRecords.h"
#include "core/MenuItems.h"
#include "core/Navigation.h"
#include "core/SingleInstance.h"
#include "core/frmHOME.h"
#include "runtime/AppPath.h"
#include "runtime/RuntimeError.h"
#include "runtime/Seams.h"
#include "support/Places.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QTimer>

QStringList& ScreenLog() {
    static QStringList log;
    return log;
}

LoggedScreen::LoggedScreen(const QString& name, const QString& title, QWidget* parent)
    : ScreenForm(name, title, parent) {
    Note("made");
}

LoggedScreen::~LoggedScreen() {
    Note("gone");
}

void LoggedScreen::BeforeShow() {
    Note("BeforeShow");
}

void LoggedScreen::DoWinInit() {
    Note("DoWinInit");
    if (failing == objectName())
        throw RuntimeError(ErrorNumber::NoCurrentRecord, QStringLiteral("no current record"));
}

void LoggedScreen::showEvent(QShowEvent* event) {
    ScreenForm::showEvent(event);
    Note("shown");
}

void LoggedScreen::hideEvent(QHideEvent* event) {
    ScreenForm::hideEvent(event);
    Note("hidden");
}

void LoggedScreen::Note(const char* what) {
    ScreenLog() << QString(objectName() + u' ' + QLatin1String(what));
}

void CoreTest::SetUp() {
    HalvaneTest::SetUp();
    const auto queue = TheSeams().ShowAlert;
    TheNavigation().InstallSeams();
    TheSeams().ShowAlert = queue;
    ScreenLog().clear();
    LoggedScreen::failing.clear();
    const auto close = [](QWidget* window) { window->close(); };
    answers[QStringLiteral("frmSplash")] = [](QWidget* splash) { Click(splash); };
    answers[QStringLiteral("frmEULA")] = [](QWidget* agreement) {
        Click(Find(agreement, QStringLiteral("cmdAccept")));
    };
    answers[QString()] = close;
}

void CoreTest::TearDown() {
    TheNavigation().Reset();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        window->hide();
        if (window->testAttribute(Qt::WA_DeleteOnClose))
            window->deleteLater();
    }
    RunDeferredDeletes();
    HeldRecords::Release();
    HalvaneTest::TearDown();
}

void CoreTest::Activate(QWidget* window) {
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
}

void CoreTest::RunDeferredDeletes() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void CoreTest::Deliver() {
    for (const char* name : {"users.mdb", "foods.mdb", "tips.txt", "agreement.txt"})
        ASSERT_TRUE(QFile::copy(Places::Build(QStringLiteral("/delivered/")) + name,
                                FileBeside(QLatin1String(name))));
}

void CoreTest::WriteFile(const QString& name, const QByteArray& bytes) {
    QFile file(FileBeside(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

QByteArray CoreTest::ReadFile(const QString& name) {
    QFile file(FileBeside(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

void CoreTest::AddLoggedScreen(const QString& name, const QString& title) {
    TheNavigation().Register(
        name, [name, title](QWidget* parent) { return new LoggedScreen(name, title, parent); });
}

int CoreTest::RunMain() {
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible())
            return;
        modals << modal->objectName();
        answers.value(modal->objectName(), answers[QString()])(modal);
    });
    watch.start(0);
    SingleInstance instance(Folder());
    testing::internal::CaptureStderr();
    const int exitCode = Flow::Main(instance);
    stderrText = QString::fromStdString(testing::internal::GetCapturedStderr());
    return exitCode;
}

QString CoreTest::MessageOf(const std::function<void()>& step) {
    QString text;
    const auto accept = [&](QWidget* window) {
        auto* box = qobject_cast<QMessageBox*>(window);
        ASSERT_NE(box, nullptr);
        text = box->text();
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        const QSize room = box->screen()->availableSize();
        EXPECT_LE(box->width(), room.width());
        EXPECT_LE(box->height(), room.height());
        box->accept();
    };
    testing::internal::CaptureStderr();
    WithModal(accept, step);
    stderrText = QString::fromStdString(testing::internal::GetCapturedStderr());
    return text;
}

QString CoreTest::EndingDuring(const std::function<void()>& work) {
    QString text;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            text = box->text();
            box->accept();
        }
    });
    watch.start(0);
    testing::internal::CaptureStderr();
    work();
    stderrText = QString::fromStdString(testing::internal::GetCapturedStderr());
    return text;
}

void CoreTest::InEvent(const std::function<void()>& work) {
    class Receiver : public QObject {
    public:
        explicit Receiver(const std::function<void()>& work)
            : work_(work) {}
        bool event(QEvent*) override {
            work_();
            return true;
        }

    private:
        const std::function<void()>& work_;
    };
    Receiver receiver(work);
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&receiver, &event);
}

void CoreTest::ChooseFromMenu(int index) {
    const MenuItems::Title& title = MenuItems::Titles()[MenuItems::All()[index].menu];
    QWidget* frame = TheNavigation().Frame();
    Click(Find(frame, QLatin1String(title.name)));
    Click(Find(frame, QStringLiteral("lblMenuItem%1").arg(index)));
}

QWidget* CoreTest::Window(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible())
            return window;
    return nullptr;
}
