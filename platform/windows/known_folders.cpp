// Known folders of the machine, and the memory in which their paths are handed out.

#include <windows.h>

#include <shlobj.h>

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "simulation/machine/current_machine.h"

namespace windows = orvik::platform::windows;
namespace simulation = orvik::simulation;

namespace {

// A text that the caller must release, with the machine that counts it.
struct TaskMemory {
  windows::WideString text;
  std::shared_ptr<simulation::Machine> machine;
};

struct TaskMemories {
  std::mutex mutex;
  std::map<const void*, std::unique_ptr<TaskMemory>> held;
};

TaskMemories& Memories() {
  static TaskMemories& memories = *new TaskMemories;
  return memories;
}

PWSTR HandOut(windows::WideString text, std::shared_ptr<simulation::Machine> machine) {
  machine->Ledger().Take(simulation::Resource::Buffer);
  auto memory = std::make_unique<TaskMemory>(TaskMemory{std::move(text), std::move(machine)});
  PWSTR address = memory->text.data();
  const std::scoped_lock lock(Memories().mutex);
  Memories().held[address] = std::move(memory);
  return address;
}

std::unique_ptr<TaskMemory> TakeBack(const void* address) {
  const std::scoped_lock lock(Memories().mutex);
  auto node = Memories().held.extract(address);
  return node.empty() ? nullptr : std::move(node.mapped());
}

}  // namespace

HRESULT WINAPI SHGetKnownFolderPath(REFKNOWNFOLDERID folder, DWORD /*flags*/, HANDLE /*token*/, PWSTR* path) {
  if (path == nullptr) return E_INVALIDARG;
  *path = nullptr;
  auto machine = simulation::CurrentMachine();
  if (windows::InjectedError(*machine, "SHGetKnownFolderPath")) return E_FAIL;
  if (folder != FOLDERID_ProgramData) return E_INVALIDARG;
  windows::WideString text = windows::ToWide(machine->Desktop().ProgramDataFolder());
  *path = HandOut(std::move(text), std::move(machine));
  return S_OK;
}

void WINAPI CoTaskMemFree(LPVOID memory) {
  if (memory == nullptr) return;
  if (const auto taken = TakeBack(memory); taken != nullptr) {
    taken->machine->Ledger().Return(simulation::Resource::Buffer);
    return;
  }
  if (windows::FreeSystemMemory(memory)) return;
  simulation::CurrentMachine()->Ledger().InvalidRelease(simulation::Resource::Buffer);
}
