// The host's service library, declared again here so that a slot that moved fails a test.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "simulation/machine/current_machine.h"

namespace contract {

#define RESERVED(n) virtual void Slot##n() = 0

struct StringHandler {
  virtual ~StringHandler() = default;
  RESERVED(1);
  virtual void RemoveBlanks(const std::string& text, std::string& output) = 0;
  RESERVED(3);
  RESERVED(4);
  virtual void Trim(std::string& text) = 0;
  RESERVED(6);
  RESERVED(7);
  RESERVED(8);
  RESERVED(9);
  RESERVED(10);
  RESERVED(11);
  RESERVED(12);
  RESERVED(13);
  RESERVED(14);
  RESERVED(15);
  virtual std::size_t BoundedLength(const char* characters, std::size_t maximum) = 0;
  RESERVED(17);
  RESERVED(18);
  RESERVED(19);
  RESERVED(20);
  RESERVED(21);
  RESERVED(22);
  RESERVED(23);
  virtual void FromBytes(std::string& output, const void* bytes, std::size_t count) = 0;
  RESERVED(25);
  RESERVED(26);
  virtual char* CopyPrintable(char* output, std::int32_t size, const char* input, std::int32_t length) = 0;
  virtual void CutSuffix(std::string& text, std::string suffix) = 0;
};

struct NumberHandler {
  virtual ~NumberHandler() = default;
  RESERVED(1);
  RESERVED(2);
  RESERVED(3);
  RESERVED(4);
  RESERVED(5);
  RESERVED(6);
  RESERVED(7);
  RESERVED(8);
  virtual void NumberText(std::string& output, std::uint16_t number) = 0;
  RESERVED(10);
  RESERVED(11);
  RESERVED(12);
  RESERVED(13);
  virtual void SizeText(std::string& output, std::uint64_t bytes) = 0;
};

struct Timer {
  virtual ~Timer() = default;
  RESERVED(1);
  virtual double Elapsed(std::uint32_t start, std::uint32_t end) = 0;
  virtual std::uint32_t Now() = 0;
};

struct FileSystem {
  virtual ~FileSystem() = default;
  RESERVED(1);
  RESERVED(2);
  RESERVED(3);
  virtual const char* LibraryDirectory() = 0;
};

struct LibraryLoader {
  virtual ~LibraryLoader() = default;
  virtual void* Load(const char* path, std::int32_t mode) = 0;
  virtual void* FindSymbol(void* library, const char* name) = 0;
  virtual void Unload(void* library) = 0;
};

#undef RESERVED

}  // namespace contract

extern "C" {
contract::StringHandler* get_string_handler();
contract::NumberHandler* get_number_handler();
contract::Timer* get_timer();
contract::FileSystem* get_filesystem();
contract::LibraryLoader* get_module();
const char* get_temporary_path();
}

namespace {

TEST(HostkitTest, HandlesStrings) {
  auto& handler = *get_string_handler();
  EXPECT_EQ(&handler, get_string_handler());
  std::string text;
  handler.RemoveBlanks("a b", text);
  EXPECT_EQ(text, "ab");
  text = " a ";
  handler.Trim(text);
  EXPECT_EQ(text, "a");
  EXPECT_EQ(handler.BoundedLength("abc", 2), 2U);
  handler.FromBytes(text, "x\0y", 3);
  EXPECT_EQ(text.size(), 3U);
  char buffer[8];
  EXPECT_STREQ(handler.CopyPrintable(buffer, 8, " a\tb ", 5), "a?b");
  text = "abc";
  handler.CutSuffix(text, "xc");
  EXPECT_EQ(text, "a");
}

TEST(HostkitTest, FormatsNumbersAndSizes) {
  std::string text;
  get_number_handler()->NumberText(text, 65535);
  EXPECT_EQ(text, "65535");
  for (const auto& [bytes, expected] : std::vector<std::pair<std::uint64_t, const char*>>{
           {0, "0 B"},
           {999, "999 B"},
           {1000, "1.00 kB"},
           {4000787030016, "4.00 TB"},
           {999994999999, "999.99 GB"},
           {999995000000, "1.00 TB"},
           {UINT64_MAX, "18.45 EB"},
       }) {
    get_number_handler()->SizeText(text, bytes);
    EXPECT_EQ(text, expected);
  }
}

TEST(HostkitTest, FollowsTheMachinesClock) {
  auto machine = std::make_shared<orvik::simulation::Machine>();
  orvik::simulation::InstallMachine(machine);
  auto& timer = *get_timer();
  const std::uint32_t start = timer.Now();
  machine->Clock().Advance(90000);
  EXPECT_NEAR(timer.Elapsed(start, timer.Now()), 90.0, 5.0);
  EXPECT_DOUBLE_EQ(timer.Elapsed(0xFFFFFF00U, 0x000000F4U), 0.5);
}

TEST(HostkitTest, LoadsLibrariesFromItsOwnFolder) {
  const std::string folder = get_filesystem()->LibraryDirectory();
  ASSERT_FALSE(folder.empty());
  auto& loader = *get_module();
  EXPECT_EQ(loader.Load((folder + "\\missing.dll").c_str(), 1), nullptr);
  EXPECT_EQ(loader.Load(nullptr, 1), nullptr);
  void* const library = loader.Load((folder + "\\" ORVIK_HOSTKIT_FILE).c_str(), 1);
  ASSERT_NE(library, nullptr);
  EXPECT_NE(loader.FindSymbol(library, "get_timer"), nullptr);
  EXPECT_EQ(loader.FindSymbol(library, "get_nothing"), nullptr);
  EXPECT_GT(orvik::simulation::CurrentMachine()->Ledger().Outstanding(orvik::simulation::Resource::Library), 0U);
  loader.Unload(library);
  EXPECT_EQ(orvik::simulation::CurrentMachine()->Ledger().OutstandingTotal(), 0U);
  EXPECT_STRNE(get_temporary_path(), "");
}

}  // namespace
