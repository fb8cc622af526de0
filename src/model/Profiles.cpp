#include "model/Profiles.h"

#include "runtime/Round.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <algorithm>

namespace {
QString SameName(const Profile& entered) {
    return QStringLiteral("SELECT * FROM profiles WHERE UserName = '") + entered.userName + u'\'';
}

/// The two messages for a name that is taken differ in their verb.
QString ProblemWith(const Profile& entered, const QString& sameName, const char* verb) {
    const QString problem = entered.FirstProblem();
    if (!problem.isEmpty() || Recordset(UserDB(), sameName).RecordCount() == 0)
        return problem;
    return QStringLiteral("A user with this name already exists in the database. Please ") +
           QLatin1String(verb) + QStringLiteral(" a different User Name.");
}

User UserOf(const Profile& entered) {
    User user;
    user.ActivityLevel = entered.activityLevel;
    user.UserName = entered.userName;
    user.Age = entered.age;
    user.Height = Round(entered.Height());
    user.CurrentWeight = Round(entered.currentWeight);
    user.DesiredWeight = Round(entered.desiredWeight);
    user.Gender = entered.gender;
    return user;
}

User UserWithKey(qint32 uid) {
    User user;
    user.UID = uid;
    user.GetUserProfile(uid);
    return user;
}

/// The store rounds what goes into a whole-number column.
void WritePerson(Recordset& row, const Profile& entered) {
    row.Set(QStringLiteral("UserName"), entered.userName);
    row.Set(QStringLiteral("age"), entered.age);
    row.Set(QStringLiteral("height"), entered.Height());
    row.Set(QStringLiteral("Gender"), entered.gender);
    row.Set(QStringLiteral("current_weight"), entered.currentWeight);
    row.Set(QStringLiteral("desired_weight"), entered.desiredWeight);
    row.Set(QStringLiteral("activity_level"), entered.activityLevel);
    row.Set(QStringLiteral("flagsodium"), false);
    row.Set(QStringLiteral("flagcholesterol"), false);
    row.Set(QStringLiteral("cholesterolMAX"), 0);
    row.Set(QStringLiteral("sodiumMAX"), 0);
}
} // namespace

std::vector<Profiles::Person> Profiles::All() {
    std::vector<Person> people;
    for (Recordset rows(UserDB(), QStringLiteral("SELECT * FROM profiles")); !rows.AtEnd();
         rows.MoveNext())
        if (rows[QStringLiteral("UID")].IsKey())
            people.push_back(
                {rows[QStringLiteral("UID")].Integer(), rows[QStringLiteral("UserName")].Text()});
    return people;
}

std::optional<User> Profiles::First() {
    const std::vector<Person> people = All();
    if (people.empty())
        return {};
    return UserWithKey(people.front().UID);
}

std::optional<User> Profiles::Find(const QString& nameOrKey) {
    const std::vector<Person> people = All();
    const auto named = std::ranges::find_if(people, [&](const Person& person) {
        return person.name.compare(nameOrKey, Qt::CaseInsensitive) == 0;
    });
    if (named != people.end())
        return UserWithKey(named->UID);
    const auto keyed = std::ranges::find(
        people, nameOrKey, [](const Person& person) { return QString::number(person.UID); });
    if (keyed == people.end())
        return {};
    return UserWithKey(keyed->UID);
}

QString Profiles::ProblemWithNew(const Profile& entered) {
    return ProblemWith(entered, SameName(entered), "select");
}

QString Profiles::ProblemWithChange(qint32 uid, const Profile& entered) {
    return ProblemWith(entered, SameName(entered) + u" AND UID <>" + QString::number(uid), "enter");
}

Profile Profiles::Read(qint32 uid) {
    const Recordset row(UserDB(), QStringLiteral("SELECT * FROM profiles WHERE UID = ") +
                                      QString::number(uid));
    Profile profile;
    profile.userName = row[QStringLiteral("UserName")].Text();
    profile.age = row[QStringLiteral("age")].NumberOr(0);
    profile.SetHeight(row[QStringLiteral("height")].WholeOr(0));
    profile.currentWeight = row[QStringLiteral("current_weight")].NumberOr(0);
    profile.desiredWeight = row[QStringLiteral("desired_weight")].NumberOr(0);
    profile.gender = row[QStringLiteral("gender")].NumberOr(0) != 0 ? 1 : 0;
    profile.activityLevel = row[QStringLiteral("activity_level")].WholeOr(0);
    profile.targets = NutrientAmounts::Of(row);
    return profile;
}

User Profiles::Append(const Profile& entered) {
    User user = UserOf(entered);
    user.CreateDefaultRDIs();
    Recordset row(UserDB(), QStringLiteral("SELECT * FROM profiles"), CursorType::Dynamic,
                  LockType::Optimistic);
    row.AddNew();
    WritePerson(row, entered);
    for (const Nutrient id : ProfileOrder())
        row.Set(QString::fromLatin1(Info(id).profileColumn), user.RDIs[id]);
    row.Update();
    user.UID = row[QStringLiteral("UID")].Integer();
    return user;
}

void Profiles::Change(qint32 uid, const Profile& entered) {
    Recordset row(UserDB(),
                  QStringLiteral("SELECT * FROM profiles WHERE UID=") + QString::number(uid),
                  CursorType::Dynamic, LockType::Pessimistic);
    WritePerson(row, entered);
    entered.targets.WriteTo(row);
    row.Update();
}
