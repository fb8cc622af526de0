#pragma once

#include "support/ScriptedServer.h"

#include <QByteArray>
#include <QList>

/// Replies of a server that is broken, overloaded or hostile.
namespace HostileReplies {
enum class Fate {
    Refused, ///< never counts as an answer
    Status,  ///< counts only where any status does
    Either,  ///< the network layer may mend it
};

struct Reply {
    QByteArray name;
    ScriptedServer::Answer answer;
    Fate fate;
    bool endless; ///< only the limit ends it
};

/// The proper answer with that status and body in each way of being wrong.
QList<Reply> Around(ScriptedServer& server, int status, const QByteArray& body);

/// JSON texts that no field of ours can hold, or that are texts meant as markup.
QByteArrayList Values();
} // namespace HostileReplies
