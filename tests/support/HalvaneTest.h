#pragma once

#include <QImage>
#include <QPoint>
#include <QQueue>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>

#include <functional>

#include <gtest/gtest.h>

class QWidget;
class Connection;

/// A fixture with its own folder, settings and process-wide state. A queue answers the alerts: an
/// alert that is not expected fails the test, and so does an expected alert that does not come.
class HalvaneTest : public ::testing::Test {
protected:
    HalvaneTest();
    ~HalvaneTest() override;
    void SetUp() override;
    void TearDown() override;

    QString Folder() const { return folder_.path(); }

    /// The next alert must have exactly this text; it is answered with `answer`.
    void ExpectAlert(const QString& message, bool answer = true);

    /// Copies the delivered users.mdb and foods.mdb into the folder and opens both.
    void OpenDatabases();
    /// Opens new files that hold only the schema.
    void OpenEmptyDatabases();
    void CloseDatabases();

    /// Runs plain SQL on users.mdb or foods.mdb and returns the first value, or all rows.
    QVariant Users(const QString& sql);
    QVariant Foods(const QString& sql);
    QList<QVariantList> Rows(Connection& connection, const QString& sql);

    /// Adds a profile with round targets (2000 kcal, 100 g protein, ...) and makes it the current
    /// user. Returns its UID.
    qint32 AddUser(const QString& name = QStringLiteral("Anna"));

    QStringList shownScreens; ///< names given to ShowScreen
    QList<int> endings;       ///< exit codes given to EndProcess

private:
    struct Answer {
        QString message;
        bool answer;
    };
    QTemporaryDir folder_;
    QQueue<Answer> alerts_;
};

/// Finds the parts of a screen as a person does: by object name.
template <class T = QWidget> T* Find(const QObject* root, const QString& name) {
    T* found = root->findChild<T*>(name);
    EXPECT_NE(found, nullptr) << "no control named " << name.toStdString();
    return found;
}

/// Runs `action`, which opens a modal window. `within` gets the visible window and must close it.
void WithModal(const std::function<void(QWidget*)>& within, const std::function<void()>& action);

void Click(QWidget* control,
           QPoint at = QPoint(-1, -1)); ///< a left click at `at`; by default in the middle
void Hover(QWidget* control, QPoint at = QPoint(-1, -1));
QImage Grab(QWidget* control); ///< what the control paints, at one device pixel a pixel
