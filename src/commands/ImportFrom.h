#pragma once

#include "records/peers/PeerImport.h"

#include <memory>
#include <string>
#include <vector>

class Session;

class Command;

/// The part of `import` that reads the exports of other programs.
namespace ImportFrom {
/// Adds --from and what belongs to it. `from` stays empty where the command is called without it.
std::shared_ptr<PeerImport::Options> AddOptions(const Command& command);

int Run(const Session& session, PeerImport::Options options, const QStringList& files, bool dryRun);
} // namespace ImportFrom
