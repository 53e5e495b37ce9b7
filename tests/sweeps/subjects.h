#pragma once

#include <string>
#include <vector>

#include "tests/sweeps/sweep.h"

namespace orvik::sweeps {

struct Subject {
  std::string name;
  MakeScene make;
};

/// Module creation, presence check, scan, the member drives of both families and the six tests.
std::vector<Subject> ModuleSubjects();

/// Each operation of a protocol object, by the number of the road to a drive.
std::vector<Subject> DriveSubjects(std::size_t road);
std::vector<std::string> DriveRoads();

}  // namespace orvik::sweeps
