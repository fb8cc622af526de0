#pragma once

#include "records/RecordsFolder.h"
#include "support/HalvaneTest.h"

/// The delivered files in a folder of their own; neither is open.
class RecordsTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenDatabases();
        CloseDatabases();
    }
    RecordsFolder Records() const { return RecordsFolder(Folder()); }
};
