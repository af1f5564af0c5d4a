#include "ui/script/program.h"

int main(int argumentCount, char** arguments) {
  return tallywick::script::runProgram(argumentCount, arguments);
}
