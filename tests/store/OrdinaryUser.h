#pragma once

#include <QFile>

#include <gtest/gtest.h>
#include <unistd.h>

/// Drops the administrator's rights for a while, because they ignore permissions. Qt asks for those
/// of the real user, opening a file for those of the effective one.
class OrdinaryUser {
public:
    OrdinaryUser()
        : was_(geteuid()) {
        if (was_ == 0) {
            EXPECT_EQ(setresuid(Nobody, Nobody, was_), 0);
        }
    }
    ~OrdinaryUser() { EXPECT_EQ(setresuid(was_, was_, was_), 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static constexpr uid_t Nobody = 65534;
    uid_t was_;
};

inline constexpr auto All = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                            QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                            QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
inline constexpr auto NoWriting =
    All & ~(QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther);
