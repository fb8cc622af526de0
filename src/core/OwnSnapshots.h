#pragma once

#include <QObject>

#include <memory>

class QThread;
class QWidget;

/// The snapshots that the program makes by itself. If one fails, a message says so, and no other
/// message follows until one has succeeded again. A failure keeps nobody from logging.
class OwnSnapshots : public QObject {
    Q_OBJECT

public:
    /// Makes the snapshot of the day if there is none yet, in a thread of its own, once the window
    /// has been painted. The window owns this.
    explicit OwnSnapshots(QWidget* window);
    ~OwnSnapshots() override; ///< waits for the thread

    /// Keeps files of an older version, before they are opened and updated.
    static void BeforeUpgrade();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Start();
    void Tell(const QString& failure) const;

    std::unique_ptr<QThread> thread_;
};
