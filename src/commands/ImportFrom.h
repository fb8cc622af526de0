#pragma once

#include "records/peers/PeerImport.h"

#include <memory>
#include <string>
#include <vector>

class Session;

namespace CLI {
class App;
}

/// The part of `import` that reads the exports of other programs.
namespace ImportFrom {
/// Adds --from and what belongs to it. `from` stays empty where the command is called without it.
std::shared_ptr<PeerImport::Options> AddOptions(CLI::App& command);

int Run(const Session& session, PeerImport::Options options, const std::vector<std::string>& files,
        bool dryRun);
} // namespace ImportFrom
