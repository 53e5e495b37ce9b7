#include "simulation/json/node.h"
#include "simulation/json/readers.h"

namespace orvik::simulation {

namespace {

constexpr std::uint32_t kLastColor = 30;
constexpr std::uint32_t kMostDpi = 1000;
// The system's own limit.
constexpr std::size_t kLongestUserName = 256;

void ReadColor(const Node& node, DesktopDescription& desktop) {
  std::uint32_t index{};
  std::uint64_t color{};
  ObjectReader object(node);
  object.Required("index", "a number from 0 to 30").Read(index, 0, kLastColor);
  object.Required("color", "a text of 6 hexadecimal digits").ReadHex(color, 6);
  object.End();
  desktop.colors[index] = static_cast<std::uint32_t>(color);
}

}  // namespace

DesktopDescription ReadDesktop(const Node& node) {
  DesktopDescription desktop;
  ObjectReader object(node);
  object.Optional("highContrast").Read(desktop.highContrast);
  object.Optional("colors").ForEach([&](const Node& each) { ReadColor(each, desktop); });
  object.Optional("screenReader").Read(desktop.screenReader);
  object.Optional("narrator").Read(desktop.narrator);
  object.Optional("dpi").Read(desktop.dpi, 1, kMostDpi);
  object.Optional("dpiLibrary").Read(desktop.dpiLibrary);
  object.Optional("programData").Read(desktop.programData);
  object.Optional("userName").Read(desktop.userName, kLongestUserName);
  object.End();
  return desktop;
}

}  // namespace orvik::simulation
