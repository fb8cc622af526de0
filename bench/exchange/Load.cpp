#include "Load.h"

#include "support/Process.h"

#include <sstream>

namespace Load {
Figures On(int port, const Plan& plan) {
    std::string output;
    Process::Run({HALVANE_LOAD, std::to_string(port), std::to_string(plan.connections),
                  plan.seconds, std::to_string(plan.rate), plan.paths},
                 &output);
    Figures figures;
    std::istringstream(output) >> figures.rate >> figures.median >> figures.p99 >>
        figures.longest >> figures.failed;
    return figures;
}
} // namespace Load
