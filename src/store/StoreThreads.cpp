#include "store/StoreThreads.h"

#include <sqlite3.h>

/// The store counts its memory behind one lock. Nobody asks for the count.
void StoreThreads::AllocateApart() {
    sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
}
