#ifndef KRM_SIM_SCRIPTS_H
#define KRM_SIM_SCRIPTS_H

#include <string>

namespace sim {

// Writes the simulator's versions of the stick, Bluetooth and system scripts
// and commands into <root>/usr/bin and <root>/bin.
bool installScripts(const std::string& root, std::string* error);

} // namespace sim

#endif
