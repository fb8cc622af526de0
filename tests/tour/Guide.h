#pragma once

#include <QDir>
#include <QQueue>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <functional>

class Connection;

/// Leads through the real program with real input. It finds controls by name, answers modal windows
/// in the order in which they are foreseen, takes pictures and checks what the databases hold. A
/// failed check is printed and counted. A connection that nobody asked for fails, too.
class Guide : public QObject {
public:
    explicit Guide(const QString& pictures);
    ~Guide() override;

    /// The next modal window must have that object name; `visit` works in it and must close it.
    void Foresee(const QString& window, std::function<void(QWidget*)> visit);

    /// The same, but before all windows that are foreseen already.
    void ForeseeNext(const QString& window, std::function<void(QWidget*)> visit);

    template <class T = QWidget> T* Find(const QWidget* root, const QString& name) {
        T* found = root->findChild<T*>(name);
        Check(found != nullptr, QStringLiteral("a control named ") + name);
        return found;
    }
    QWidget* Window(const QString& name); ///< the visible window or screen of that name

    void Press(QWidget* root, const QString& button);
    void Type(QWidget* root, const QString& field,
              const QString& text);   ///< replaces the field's text
    void TakeInput(QWidget* control); ///< keys go to its window from here on
    void HoverOver(QWidget* root, const QString& control);
    void Picture(QWidget* window, const QString& name);
    /// The window with the menus, lists and tips that are open over it.
    void PictureWithPopups(QWidget* window, const QString& name);
    void Save(const QPixmap& picture, const QString& name);
    void Settle(); ///< lets pending paints and events run

    void Check(bool holds, const QString& what);
    void CheckValue(Connection& connection, const QString& sql, const QVariant& expected);

    bool eventFilter(QObject* watched,
                     QEvent* event) override; ///< for each window that is shown

    int Failures() const { return failures_; }
    bool AllForeseenCame() const { return foreseen_.isEmpty(); }

private:
    struct Stop {
        QString window;
        std::function<void(QWidget*)> work;
    };
    void Visit(QWidget* modal);
    static void KeepHoverLooks(QWidget* form);

    QDir pictures_;
    QQueue<Stop> foreseen_;
    int failures_ = 0;
    int taken_ = 0;
};
