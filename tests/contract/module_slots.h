#pragma once

// The module's interfaces as another vendor's host would declare them, slot by slot, without the headers that the
// library was built with. A slot that moved fails a test here.

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace contract {

using KeyValueList = std::vector<std::pair<std::string, std::string>>;

struct Device {
  virtual ~Device() = default;
  virtual std::string Id() const = 0;
  virtual std::string Name() const = 0;
  virtual bool HasUdi() const = 0;
  virtual std::string Udi() const = 0;
  virtual KeyValueList ExtraProperties() const = 0;
  virtual std::vector<std::string> Tags() const = 0;
  virtual bool IsTestable() const = 0;
  virtual void Refresh() = 0;
  virtual std::uint32_t ControllerInfo(struct ControllerInfo& info) = 0;
  virtual std::uint32_t LogicalDrives(std::vector<struct LogicalDrive>& drives) = 0;
  virtual std::uint32_t PhysicalDrives(std::vector<struct PhysicalDrive>& drives) = 0;
  virtual std::uint32_t StorageDevices(std::vector<struct StorageDevice>& devices) = 0;
};

struct ControllerInfo {
  std::string serial, model, driverVersion, platform;
  std::int64_t logicalDrives = -1;
  std::vector<std::string> raidLevels, interfaces;
  bool bbu = false;
  std::string udi;
};

struct LogicalDrive {
  std::uint32_t members;
  std::string raidLevel;
  std::uint64_t size;
  std::string name;
  std::vector<std::uint8_t> vendorData;
  std::uint16_t sequence;
  std::uint32_t state;
  std::vector<std::string> failed;
};

struct PhysicalDrive {
  std::uint32_t protocol;
  std::string manufacturer, model;
  std::uint64_t size;
  std::uint16_t id;
  std::string serial;
};

struct StorageDevice {
  std::string id;
  std::uint32_t protocol;
  std::shared_ptr<void> object, ataObject;
};

struct Description {
  std::string id, udi, name;
  KeyValueList extra, properties;
  std::vector<KeyValueList> resources;
  std::vector<std::string> tags;
  bool testable;
};

struct Listener {
  virtual ~Listener() = default;
  virtual void Found(const Description& description) = 0;
  virtual void OwnBusiness() = 0;
  virtual void Finished() = 0;
  virtual void Presence(bool present) = 0;
};

struct Scanner {
  virtual ~Scanner() = default;
  virtual void Scan(std::shared_ptr<Listener> listener) = 0;
  virtual void CheckPresence(std::shared_ptr<Listener> listener) = 0;
  virtual std::weak_ptr<Device> Find(std::string id) = 0;
  virtual std::vector<std::weak_ptr<Device>> Devices() = 0;
};

struct Message {
  std::uint8_t type;
  std::string text;
};

struct Question {
  virtual void Interact() = 0;
  virtual ~Question() = default;
  virtual void DoInteract() = 0;
};

struct Reporter {
  virtual ~Reporter() = default;
  virtual void Progress(std::uint8_t percent) = 0;
  virtual void Add(const Message& message) = 0;
  virtual void Ask(std::unique_ptr<Question>& question) = 0;
};

struct Events {
  std::uint32_t flags;
  std::mutex mutex;
};

struct Arguments {
  std::weak_ptr<Device> device;
  const std::uint8_t* abort;
  Reporter* reporter;
  Events* events;
};

struct TestDescriptor {
  std::uint32_t id;
  std::string name, tooltip;
  std::vector<std::string> parameters;  // always empty, of any element type
  std::string group;
  std::uint32_t groupKind;
  std::string text1, text2;
  bool flag;
};

struct Test {
  virtual ~Test() = default;
  virtual std::uint8_t Run(Arguments& arguments) = 0;
  virtual bool IsExclusive() const = 0;
  virtual std::uint32_t Duration() const = 0;
  virtual bool IsSupported(const Device& device, std::shared_ptr<void> unused) const = 0;
  TestDescriptor descriptor;
};

struct Request {
  std::weak_ptr<Device> device;
  std::int32_t mode;
  Test* test;
};

struct Task {
  virtual ~Task() = default;
  virtual void Execute() = 0;
};

struct Dispatcher {
  virtual ~Dispatcher() = default;
  virtual bool CanStart(const std::unique_ptr<Request>& request) = 0;
  virtual void Dispatch(std::unique_ptr<Task> task) = 0;
  virtual void Finished(const std::unique_ptr<Request>& request) = 0;
  virtual void Started(const std::unique_ptr<Request>& request) = 0;
};

struct Version {
  std::uint8_t major;
  std::uint16_t minor, patch;
  std::string suffix;
};

struct Module {
  virtual ~Module() = default;
  virtual std::unique_ptr<Test> CreateTest(std::int32_t id) const = 0;
  virtual std::int32_t TestCount() const = 0;
  virtual std::string ShortName() const = 0;
  virtual std::string Name() const = 0;
  virtual Version GetVersion() const = 0;
  virtual std::shared_ptr<Scanner> GetScanner() const = 0;
  virtual std::shared_ptr<Dispatcher> GetDispatcher() const = 0;
  virtual void ClearStringSet() = 0;
  virtual std::vector<std::int32_t> TestIds() const = 0;
  virtual std::vector<std::string> AuxiliaryList() const = 0;
  virtual std::string AuxiliaryText() const = 0;
};

}  // namespace contract
