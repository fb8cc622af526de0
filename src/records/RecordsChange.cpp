#include "records/RecordsChange.h"

#include "records/RecordsFolder.h"
#include "store/Connection.h"

RecordsChange::RecordsChange(const RecordsFolder& folder)
    : lock_(folder) {
    UserDB().Open(folder.Users(), DatabaseKind::Users);
    FoodDB().OpenTogether(folder.Foods(), DatabaseKind::Foods, UserDB());
    transaction_.emplace(UserDB());
}

RecordsChange::~RecordsChange() {
    transaction_.reset();
    FoodDB().Close();
    UserDB().Close();
}

void RecordsChange::Commit() {
    transaction_->Commit();
}
