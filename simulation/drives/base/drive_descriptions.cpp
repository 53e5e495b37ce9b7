#include "simulation/drives/base/drive_descriptions.h"

#include "simulation/bytes.h"

namespace orvik::simulation {

namespace {

namespace label_log {
constexpr std::size_t kSize = 512;
constexpr Block kMark{0, 3};
constexpr Block kFormMark{20, 2};
constexpr Block kLabel{110, 30};
}  // namespace label_log

}  // namespace

std::vector<std::uint8_t> MakeLabelLog(std::string_view label) {
  std::vector<std::uint8_t> log(label_log::kSize);
  SetText(log, label_log::kMark, "CRV", ' ');
  SetText(log, label_log::kFormMark, "8S", ' ');
  SetText(log, label_log::kLabel, label, ' ');
  return log;
}

}  // namespace orvik::simulation
