#include "ui/qt/program.h"

int main(int argumentCount, char** arguments) {
  return tallywick::runProgram(argumentCount, arguments);
}
