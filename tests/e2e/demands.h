#pragma once

#include "tools/driver/driver.h"
#include "tools/driver/workplace.h"

namespace e2e {

// What must hold whatever the user does. Each throws NotSeen when it does not.

/// Every window of the program answers, something of it can be used, and the keyboard is where it is of use.
void demandUsable(const Program& program);

/// Its settings, baselines and snapshot are complete, and no baseline of an added folder holds names that
/// begin with a digit beside others: those lie in another folder.
void demandWholeFiles(const ProgramFolder& folder);

} // namespace e2e
