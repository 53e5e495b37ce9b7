// Unloads the module's library after its question was shown over a window of the host.

#include <QApplication>
#include <QLibrary>
#include <QTimer>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <windows.h>

#include "simulation/machine/current_machine.h"
#include "simulation/machine/load_machine.h"
#include "tests/contract/module_slots.h"
#include "tests/dialogs/gui_events.h"

namespace orvik::testing {
namespace {

constexpr std::int32_t kCheckConsistency = 4;

class Listener final : public contract::Listener {
 public:
  void Found(const contract::Description& description) override { id = description.id; }
  void OwnBusiness() override {}
  void Finished() override {}
  void Presence(bool /*present*/) override {}

  std::string id;
};

class Reporter final : public contract::Reporter {
 public:
  void Progress(std::uint8_t /*percent*/) override {}
  void Add(const contract::Message& /*message*/) override {}
  void Ask(std::unique_ptr<contract::Question>& question) override {
    question->Interact();
    asked = true;
    abort = 1;  // the test needs no more of the run
  }

  std::uint8_t abort = 0;
  bool asked = false;
};

bool IsMapped(QFunctionPointer function) {
  HMODULE library = nullptr;
  constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  return GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(function), &library) != FALSE;
}

// Runs the consistency check on a worker, as a host does, and closes its question while a theme change is under way.
// True when it asked.
bool AskAndClose(contract::Module& module, simulation::Machine& machine) {
  const auto listener = std::make_shared<Listener>();
  const auto scanner = module.GetScanner();
  scanner->Scan(listener);
  Reporter reporter;
  contract::Events events{};
  contract::Arguments arguments{scanner->Find(listener->id), &reporter.abort, &reporter, &events};
  const auto test = module.CreateTest(kCheckConsistency);
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    QWidget* const question = QApplication::activeModalWidget();
    if (question == nullptr) return;
    auto desktop = machine.Desktop().State();
    desktop.colors[0] += 1;
    machine.Desktop().Change(desktop);
    QCoreApplication::processEvents();
    question->close();
  });
  watch.start(10);
  std::atomic<bool> done = false;
  std::thread worker([&] {
    test->Run(arguments);
    done = true;
  });
  while (!done) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  worker.join();
  return reporter.asked;
}

TEST(UnloadingTest, HostGoesOnAfterAQuestion) {
  for (int round = 0; round < 5; ++round) {
    auto loaded = simulation::LoadMachine(ORVIK_MACHINES_DIR "/consistency.json");
    const auto machine = std::get<std::shared_ptr<simulation::Machine>>(loaded);
    simulation::InstallMachine(machine);
    QWidget window;
    window.show();
    QLibrary library(QStringLiteral(ORVIK_MODULE));
    ASSERT_TRUE(library.load()) << library.errorString().toStdString();
    const auto create = library.resolve("CreateModuleInstance");
    const auto destroy = library.resolve("DestroyModuleInstance");
    auto* const module = reinterpret_cast<contract::Module* (*)()>(create)();
    EXPECT_TRUE(AskAndClose(*module, *machine));
    reinterpret_cast<void (*)(contract::Module*)>(destroy)(module);
    EXPECT_TRUE(IsMapped(create));
    ASSERT_TRUE(library.unload());
    EXPECT_FALSE(IsMapped(create));
    EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
    EXPECT_TRUE(window.children().isEmpty());
    // Reaches every widget, timer and event filter, and what draws pictures.
    QApplication::setFont(QFont(QApplication::font().family(), 11 + round));
    window.setStyleSheet(QStringLiteral("QWidget { image: url(\"picture.svg\") }"));
    WaitFor([] { return false; }, 150);
  }
}

}  // namespace
}  // namespace orvik::testing
