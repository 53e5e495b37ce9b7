#pragma once

#include <hostkit.h>

namespace hostkit {

class DecimalNumberHandler final : public NumberHandler {
 public:
  void NumberText(std::string& output, std::uint16_t number) const override;
  void SizeText(std::string& output, std::uint64_t bytes) const override;
};

class MachineTimer final : public Timer {
 public:
  double Elapsed(std::uint32_t start, std::uint32_t end) const override;
  std::uint32_t Now() const override;
};

class InstalledFileSystem final : public FileSystem {
 public:
  InstalledFileSystem();
  const char* LibraryDirectory() const override;

 private:
  std::string directory_;
};

class SystemLibraryLoader final : public LibraryLoader {
 public:
  void* Load(const char* path, std::int32_t mode) override;
  void* FindSymbol(void* library, const char* name) override;
  void Unload(void* library) override;
};

}  // namespace hostkit
