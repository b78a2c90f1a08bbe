#include "commands.h"

int main(int argc, char** argv) {
  using namespace Qv;

  try {
    Program program;
    addSchemesCommand(program);
    addLsCommand(program);
    addTreeCommand(program);
    addShowCommand(program);
    addSearchCommand(program);
    addDetailCommand(program);
    addActionsCommand(program);
    addRunActionCommand(program);
    addDragCommand(program);
    addStartupCommand(program);
    addPackagesCommand(program);
    addPluginsCommand(program);
    addCheckCommand(program);
    return program.run(argc, argv);
  } catch (std::bad_alloc const&) {
    printProblem("out of memory");
  } catch (std::exception const& error) {
    printProblem(error.what());
  }
  return Failure;
}
