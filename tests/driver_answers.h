// The whole program, worked by the driver's commands.
#pragma once

#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "tools/driver/driver.h"

namespace tarnwick {

// What the driver prints when it is given these commands, one a line. None may be in error.
inline std::string DriverAnswers(const std::string& commands) {
  std::istringstream input(commands);
  std::ostringstream output;
  EXPECT_EQ(Driver(input, output, TEST_PROGRAM_FOLDER).Run(), 0) << output.str();
  return output.str();
}

}  // namespace tarnwick
