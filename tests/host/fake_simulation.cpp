// A simulation library for the host to load, and an example of a library that is not a module.

#include <QtCore/qglobal.h>

#include <cstdlib>
#include <fstream>
#include <string_view>

extern "C" Q_DECL_EXPORT int OrvikSimulationHasVendorLibrary() {
  const char* const mood = std::getenv("FAKE_MOOD");
  return mood == nullptr || std::string_view(mood).find("no-vendor") == std::string_view::npos;
}

extern "C" Q_DECL_EXPORT const char* OrvikSimulationOpen(const char* utf8Path) {
  if (const char* const log = std::getenv("FAKE_LOG"))
    std::ofstream(log, std::ios::app) << "opened " << utf8Path << '\n';
  const bool isGood = std::string_view(utf8Path).ends_with("good.json");
  return isGood ? nullptr : "broken.json: /controllers/0: expected an object,\nfound a number";
}
