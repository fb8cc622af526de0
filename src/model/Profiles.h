#pragma once

#include "model/Profile.h"
#include "model/User.h"

#include <optional>
#include <vector>

/// The rows of `profiles`, as the profile screen reads and writes them.
namespace Profiles {
/// The user of the first row that has a sound key, if there is one. Nothing chooses between several
/// profiles.
std::optional<User> First();
/// The user with that name, whatever its case. If there is none: the user with that key.
std::optional<User> Find(const QString& nameOrKey);

struct Person {
    qint32 UID;
    QString name;
};
std::vector<Person> All(); ///< those with a sound key, in the order of the rows

/// The message of the first problem: a rule that is broken, or a name that somebody else has. Empty
/// if there is none.
QString ProblemWithNew(const Profile& entered);
QString ProblemWithChange(qint32 uid, const Profile& entered);

Profile Read(qint32 uid); ///< a key without a row fails (3021)

/// Appends a row. Its targets are derived from the entries; the entered ones are not used. Gives
/// the user of that row. If a target cannot be derived, this fails and nothing is written.
User Append(const Profile& entered);

/// Writes person and targets as entered; derives nothing.
void Change(qint32 uid, const Profile& entered);
} // namespace Profiles
