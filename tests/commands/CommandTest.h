#pragma once

#include "support/HalvaneTest.h"

#include <iosfwd>

/// Runs halvane-data in this process, on delivered files in a folder of its own.
class CommandTest : public HalvaneTest {
protected:
    struct Run {
        int code;
        QString out;
        QString error;
    };

    void SetUp() override; ///< copies the files; neither is open
    /// Without the program's name. The folder of the test is the folder of the records.
    Run Command(const QStringList& arguments) const { return Answering(arguments, nullptr); }
    /// With somebody at the keyboard who types these answers.
    Run Command(const QStringList& arguments, const char* answers) const;

private:
    static Run Answering(const QStringList& arguments, std::istream* keyboard);
};
