#include "update/update_procedure.h"

namespace tallywick {

void Command2_Click(UpdateSurroundings&) {}
void mnuPowerBall2_Click(UpdateSurroundings&) {}
void mnuMegaMillions2_Click(UpdateSurroundings&) {}

}  // namespace tallywick
