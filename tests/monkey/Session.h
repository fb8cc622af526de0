#pragma once

#include <QRandomGenerator>
#include <QString>
#include <QTemporaryDir>

/// A fresh folder, and a row of starts of the program in it, each in a process of its own with its
/// own seed and its own size of texts. The seed of the session repeats it.
class Session {
public:
    explicit Session(quint32 seed);

    bool Run(); ///< false if something was found; it is printed

    /// What all sessions have done so far.
    struct Tally {
        int lives = 0;
        qint64 inputs = 0;
        qint64 changes = 0;
        qint64 alerts = 0;
    };
    static const Tally& Total();

private:
    void LayOut();
    void AddPerson();
    bool Live(int life);
    bool IsSound() const;
    void Count(const QByteArray& said);

    quint32 seed_;
    QRandomGenerator random_;
    QTemporaryDir folder_;
};
