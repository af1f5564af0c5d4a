#include "update/maintenance.h"

namespace tallywick {

void Command1_Click(const DataFolder&, ProgramStarter&) {}
void Command51_Click(const DataFolder&, ProgramStarter&) {}

}  // namespace tallywick
