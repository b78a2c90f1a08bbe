#pragma once

#include "program.h"

namespace Qv {

void addSchemesCommand(Program& program);
void addLsCommand(Program& program);
/// Also what runs without a command.
void addTreeCommand(Program& program);
void addShowCommand(Program& program);
void addSearchCommand(Program& program);
void addDetailCommand(Program& program);
void addActionsCommand(Program& program);
void addRunActionCommand(Program& program);
void addDragCommand(Program& program);
void addStartupCommand(Program& program);
void addPackagesCommand(Program& program);
void addPluginsCommand(Program& program);
void addCheckCommand(Program& program);

} // namespace Qv
