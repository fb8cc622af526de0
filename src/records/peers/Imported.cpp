#include "records/peers/Imported.h"

void Imported::Refuse(const Origin& origin, const QString& reason) {
    rejects.push_back({Reject::Kind::Refused, origin, reason});
}

void Imported::LeaveOut(const Origin& origin, const QString& reason) {
    rejects.push_back({Reject::Kind::LeftOut, origin, reason});
}

void Imported::NoteChange(const Origin& origin, const QString& reason) {
    rejects.push_back({Reject::Kind::Changed, origin, reason});
}
