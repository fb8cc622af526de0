#pragma once

#include <QDate>
#include <QString>

class Guide;
class QWidget;

/// A person looks at reports: of a single day, of a period without entries, of a week and a year of
/// real foods, of a constant weight, and without any weight. The logs are left as they were.
class ReportWalk {
public:
    explicit ReportWalk(Guide& guide);
    void Go();

private:
    void OneEntry();
    void RefusedDate();
    void NothingLogged();
    void AWeek();
    void AYear();
    void ConstantWeight();
    void WithoutWeights();
    void LeaveLogs();

    void EatOn(QDate day);
    void FillDays(int days);
    void SetPeriod(QDate start, QDate end);
    void Report(QDate start, QDate end);
    void ExpectNoWeight(const QString& picture);
    void LookAtViews(const QString& name);
    void CheckFigures(QDate start, QDate end);
    QWidget* Frame();
    QWidget* Screen();

    Guide& guide_;
};
