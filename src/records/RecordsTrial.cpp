#include "records/RecordsTrial.h"

#include "records/RecordsCopy.h"
#include "records/RecordsFolder.h"
#include "store/Connection.h"

RecordsTrial::RecordsTrial(const RecordsFolder& folder) {
    const RecordsFolder copies(copies_.path());
    RecordsCopy::MakeUpdated(folder, copies);
    UserDB().Open(copies.Users(), DatabaseKind::Users);
    FoodDB().OpenTogether(copies.Foods(), DatabaseKind::Foods, UserDB());
    transaction_.emplace(UserDB());
}

RecordsTrial::~RecordsTrial() {
    transaction_.reset();
    FoodDB().Close();
    UserDB().Close();
}
