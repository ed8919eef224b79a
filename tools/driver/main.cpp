// Runs the whole program by text: commands from standard input, answers to standard output.
#include <iostream>

#include "desktop/program_folder.h"
#include "tools/driver/driver.h"

int main() {
  std::ios::sync_with_stdio(false);
  tarnwick::Driver driver(std::cin, std::cout, tarnwick::ProgramFolder());
  return driver.Run();
}
