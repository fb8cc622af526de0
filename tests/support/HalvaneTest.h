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

/// A fixture with a folder, settings and process-wide state of its own. Alerts are answered through
/// a queue: one that nobody expects fails the test, and so does an expected one that never came.
class HalvaneTest : public ::testing::Test {
protected:
    HalvaneTest();
    ~HalvaneTest() override;
    void SetUp() override;
    void TearDown() override;

    QString Folder() const { return folder_.path(); }

    /// The next alert must hold just this text; it is answered so.
    void ExpectAlert(const QString& message, bool answer = true);

    /// Copies the delivered users.mdb and foods.mdb into the folder and opens both.
    void OpenDatabases();
    /// New files with the schema alone, opened.
    void OpenEmptyDatabases();
    void CloseDatabases();

    /// Runs plain SQL on users.mdb or foods.mdb and gives the first value, or all rows.
    QVariant Users(const QString& sql);
    QVariant Foods(const QString& sql);
    QList<QVariantList> Rows(Connection& connection, const QString& sql);

    /// A profile row with round targets (2000 kcal, 100 g protein, ...), made the current user.
    /// Returns its UID.
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

/// Ways to reach into a screen as a person does: by object name.
template <class T = QWidget> T* Find(const QObject* root, const QString& name) {
    T* found = root->findChild<T*>(name);
    EXPECT_NE(found, nullptr) << "no control named " << name.toStdString();
    return found;
}

/// Runs `action` while the next modal window stands open; `within` gets that window once it is
/// shown and must close it.
void WithModal(const std::function<void(QWidget*)>& within, const std::function<void()>& action);

void Click(QWidget* control,
           QPoint at = QPoint(-1, -1)); ///< a left click in the middle, or at that place
void Hover(QWidget* control, QPoint at = QPoint(-1, -1));
QImage Grab(QWidget* control); ///< what the control paints, at one device pixel a pixel
