// Prints tables of phases, eclipses and dates for readers who want a whole one.
#include <iostream>
#include <string_view>
#include <vector>

#include "desktop/terminal.h"
#include "tools/tables/tables.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  return tarnwick::RunTables(arguments, std::cout, std::cerr, tarnwick::ErrorsGoToTerminal());
}
