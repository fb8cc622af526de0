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
/// The user whose name, whatever the case, or else whose key the text is.
std::optional<User> Find(const QString& nameOrKey);

struct Person {
    qint32 UID;
    QString name;
};
std::vector<Person> All(); ///< those with a sound key, in the order of the rows

/// What is wrong with the entries, a name that somebody else has included; empty if nothing is.
QString ProblemWithNew(const Profile& entered);
QString ProblemWithChange(qint32 uid, const Profile& entered);

Profile Read(qint32 uid); ///< a key without a row fails (3021)

/// Appends a row with targets derived from the entries, not with those entered. Gives the user of
/// that row. The entries must be right: where a derivation fails, nothing is written.
User Append(const Profile& entered);

/// Writes person and targets as entered; derives nothing.
void Change(qint32 uid, const Profile& entered);
} // namespace Profiles
