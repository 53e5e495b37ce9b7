#include "benchmarks/outside_calls.h"

#include <windows.h>
#include <dlfcn.h>
#include <hostkit.h>
#include <setupapi.h>

#include <algorithm>
#include <bit>
#include <string>
#include <string_view>

#include "module/raid/storelib/storelib_layout.h"
#include "utils/bytes/byte_view.h"

namespace orvik::benchmarks {

namespace {

using Bytes = std::vector<std::uint8_t>;
using WideText = std::basic_string<WCHAR>;

OutsideCalls* recording = nullptr;
std::uint32_t (*processLibCommand)(void*) = nullptr;

std::chrono::nanoseconds requestTime{0};

/// Busy until a request that started at its construction may end.
class Request {
 public:
  Request() {
    if (requestTime.count() != 0) end_ = std::chrono::steady_clock::now() + requestTime;
  }
  Request(const Request&) = delete;
  Request& operator=(const Request&) = delete;
  ~Request() {
    while (requestTime.count() != 0 && std::chrono::steady_clock::now() < end_) {
    }
  }

 private:
  std::chrono::steady_clock::time_point end_;
};

/// The function of that name behind this program's own.
template <typename Function>
Function* Next(Function* /*own*/, const char* name) {
  return std::bit_cast<Function*>(dlsym(RTLD_NEXT, name));
}

Bytes BytesAt(const void* data, std::size_t size) {
  const auto* const first = static_cast<const std::uint8_t*>(data);
  return first == nullptr ? Bytes() : Bytes(first, first + size);
}

/// In place of the host's.
class RecordedNumbers final : public hostkit::NumberHandler {
 public:
  explicit RecordedNumbers(const hostkit::NumberHandler& next) : next_(next) {}

  void NumberText(std::string& output, std::uint16_t number) const override { next_.NumberText(output, number); }
  void SizeText(std::string& output, std::uint64_t bytes) const override {
    if (recording != nullptr) {
      recording->Add([this, bytes](OutsideCalls& /*calls*/) {
        std::string text;
        next_.SizeText(text, bytes);
      });
    }
    next_.SizeText(output, bytes);
  }

 private:
  const hostkit::NumberHandler& next_;
};

void Send(OutsideCalls& calls, Bytes packet, const Bytes& data) {
  std::uint8_t* const block = calls.Room(data, data.size());
  if (!data.empty()) {
    utils::MutableByteView(packet).Put(module::raid::lsi::packet::kDataAddress, std::bit_cast<std::uintptr_t>(block));
  }
  const Request request;
  processLibCommand(packet.data());
}

}  // namespace

void SetRequestTime(std::chrono::nanoseconds least) {
  requestTime = least;
}

void OutsideCalls::Record(const std::function<void()>& work) {
  calls_.clear();
  numbers_.clear();
  live_.clear();
  recording = this;
  work();
  recording = nullptr;
}

void OutsideCalls::Replay() {
  for (const Call& call : calls_) call(*this);
}

std::size_t OutsideCalls::NewObject(void* recorded) {
  numbers_[recorded] = live_.size();
  live_.push_back(nullptr);
  return live_.size() - 1;
}

std::size_t OutsideCalls::Object(void* recorded) const {
  return numbers_.at(recorded);
}

std::uint8_t* OutsideCalls::Room(const Bytes& bytes, std::size_t size) {
  if (room_.size() < size) room_.resize(size);
  std::ranges::copy(bytes, room_.begin());
  return room_.data();
}

}  // namespace orvik::benchmarks

using orvik::benchmarks::Bytes;
using orvik::benchmarks::BytesAt;
using orvik::benchmarks::Next;
using orvik::benchmarks::OutsideCalls;
using orvik::benchmarks::recording;
using orvik::benchmarks::Request;
using orvik::benchmarks::WideText;

extern "C" {

HANDLE WINAPI CreateFileW(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security, DWORD disposition,
                          DWORD flags, HANDLE pattern) {
  static const auto next = Next(&CreateFileW, "CreateFileW");
  HANDLE opened = next(name, access, share, security, disposition, flags, pattern);
  if (recording != nullptr) {
    const std::size_t number = recording->NewObject(opened);
    recording->Add([=, path = WideText(name)](OutsideCalls& calls) {
      calls.Live(number) = next(path.c_str(), access, share, security, disposition, flags, pattern);
    });
  }
  return opened;
}

BOOL WINAPI CloseHandle(HANDLE handle) {
  static const auto next = Next(&CloseHandle, "CloseHandle");
  if (recording != nullptr) {
    recording->Add([number = recording->Object(handle)](OutsideCalls& calls) { next(calls.Live(number)); });
  }
  return next(handle);
}

BOOL WINAPI DeviceIoControl(HANDLE device, DWORD code, LPVOID input, DWORD inputSize, LPVOID output, DWORD outputSize,
                            LPDWORD returned, LPOVERLAPPED overlapped) {
  static const auto next = Next(&DeviceIoControl, "DeviceIoControl");
  if (recording != nullptr) {
    recording->Add([=, number = recording->Object(device), request = BytesAt(input, inputSize)](OutsideCalls& calls) {
      std::uint8_t* const room = calls.Room(request, std::max(inputSize, outputSize));
      DWORD size = 0;
      const Request timed;
      next(calls.Live(number), code, room, inputSize, room, outputSize, &size, nullptr);
    });
  }
  const Request timed;
  return next(device, code, input, inputSize, output, outputSize, returned, overlapped);
}

HDEVINFO WINAPI SetupDiGetClassDevsW(const GUID* classGuid, PCWSTR enumerator, HWND parent, DWORD flags) {
  static const auto next = Next(&SetupDiGetClassDevsW, "SetupDiGetClassDevsW");
  HDEVINFO set = next(classGuid, enumerator, parent, flags);
  if (recording != nullptr) {
    const std::size_t number = recording->NewObject(set);
    recording->Add([=, wanted = *classGuid](OutsideCalls& calls) {
      calls.Live(number) = next(&wanted, nullptr, nullptr, flags);
    });
  }
  return set;
}

BOOL WINAPI SetupDiDestroyDeviceInfoList(HDEVINFO set) {
  static const auto next = Next(&SetupDiDestroyDeviceInfoList, "SetupDiDestroyDeviceInfoList");
  if (recording != nullptr) {
    recording->Add([number = recording->Object(set)](OutsideCalls& calls) { next(calls.Live(number)); });
  }
  return next(set);
}

BOOL WINAPI SetupDiEnumDeviceInfo(HDEVINFO set, DWORD index, PSP_DEVINFO_DATA device) {
  static const auto next = Next(&SetupDiEnumDeviceInfo, "SetupDiEnumDeviceInfo");
  if (recording != nullptr) {
    recording->Add([=, number = recording->Object(set), record = *device](OutsideCalls& calls) mutable {
      next(calls.Live(number), index, &record);
    });
  }
  return next(set, index, device);
}

BOOL WINAPI SetupDiEnumDeviceInterfaces(HDEVINFO set, PSP_DEVINFO_DATA device, const GUID* interfaceClass,
                                        DWORD index, PSP_DEVICE_INTERFACE_DATA found) {
  static const auto next = Next(&SetupDiEnumDeviceInterfaces, "SetupDiEnumDeviceInterfaces");
  if (recording != nullptr) {
    recording->Add([=, number = recording->Object(set), record = *device, wanted = *interfaceClass, room = *found](
                       OutsideCalls& calls) mutable { next(calls.Live(number), &record, &wanted, index, &room); });
  }
  return next(set, device, interfaceClass, index, found);
}

BOOL WINAPI SetupDiGetDeviceInterfaceDetailW(HDEVINFO set, PSP_DEVICE_INTERFACE_DATA found,
                                             PSP_DEVICE_INTERFACE_DETAIL_DATA_W detail, DWORD detailSize,
                                             PDWORD requiredSize, PSP_DEVINFO_DATA device) {
  static const auto next = Next(&SetupDiGetDeviceInterfaceDetailW, "SetupDiGetDeviceInterfaceDetailW");
  if (recording != nullptr) {
    recording->Add([=, number = recording->Object(set), record = *found,
                    request = BytesAt(detail, detailSize)](OutsideCalls& calls) mutable {
      auto* const room = reinterpret_cast<PSP_DEVICE_INTERFACE_DETAIL_DATA_W>(calls.Room(request, detailSize));
      DWORD required = 0;
      next(calls.Live(number), &record, detailSize == 0 ? nullptr : room, detailSize, &required, nullptr);
    });
  }
  return next(set, found, detail, detailSize, requiredSize, device);
}

BOOL WINAPI SetupDiGetDeviceRegistryPropertyW(HDEVINFO set, PSP_DEVINFO_DATA device, DWORD property, PDWORD type,
                                              PBYTE buffer, DWORD bufferSize, PDWORD requiredSize) {
  static const auto next = Next(&SetupDiGetDeviceRegistryPropertyW, "SetupDiGetDeviceRegistryPropertyW");
  if (recording != nullptr) {
    recording->Add([=, number = recording->Object(set), record = *device](OutsideCalls& calls) mutable {
      DWORD required = 0;
      next(calls.Live(number), &record, property, nullptr, bufferSize == 0 ? nullptr : calls.Room({}, bufferSize),
           bufferSize, &required);
    });
  }
  return next(set, device, property, type, buffer, bufferSize, requiredSize);
}

BOOL WINAPI SetupDiGetDeviceInstanceIdW(HDEVINFO set, PSP_DEVINFO_DATA device, PWSTR instanceId, DWORD size,
                                        PDWORD requiredSize) {
  static const auto next = Next(&SetupDiGetDeviceInstanceIdW, "SetupDiGetDeviceInstanceIdW");
  if (recording != nullptr) {
    recording->Add([=, number = recording->Object(set), record = *device](OutsideCalls& calls) mutable {
      auto* const room = reinterpret_cast<PWSTR>(calls.Room({}, size * sizeof(WCHAR)));
      DWORD required = 0;
      next(calls.Live(number), &record, size == 0 ? nullptr : room, size, &required);
    });
  }
  return next(set, device, instanceId, size, requiredSize);
}

LSTATUS WINAPI RegGetValueW(HKEY key, LPCWSTR subKey, LPCWSTR value, DWORD flags, LPDWORD type, PVOID data,
                            LPDWORD size) {
  static const auto next = Next(&RegGetValueW, "RegGetValueW");
  if (recording != nullptr) {
    recording->Add([=, path = WideText(subKey), name = WideText(value), room = *size](OutsideCalls& calls) {
      DWORD bytes = room;
      next(key, path.c_str(), name.c_str(), flags, nullptr, data == nullptr ? nullptr : calls.Room({}, room), &bytes);
    });
  }
  return next(key, subKey, value, flags, type, data, size);
}

HMODULE WINAPI LoadLibraryW(LPCWSTR path) {
  static const auto next = Next(&LoadLibraryW, "LoadLibraryW");
  HMODULE library = next(path);
  if (recording != nullptr) {
    const std::size_t number = recording->NewObject(library);
    recording->Add([number, name = WideText(path)](OutsideCalls& calls) { calls.Live(number) = next(name.c_str()); });
  }
  return library;
}

BOOL WINAPI FreeLibrary(HMODULE library) {
  static const auto next = Next(&FreeLibrary, "FreeLibrary");
  if (recording != nullptr) {
    recording->Add([number = recording->Object(library)](OutsideCalls& calls) {
      next(static_cast<HMODULE>(calls.Live(number)));
    });
  }
  return next(library);
}

/// In place of the vendor's function.
static std::uint32_t RecordedLibCommand(void* address) {
  using namespace orvik::module::raid::lsi;
  if (recording != nullptr) {
    const Bytes bytes = BytesAt(address, packet::kSize);
    const orvik::utils::ByteView view(bytes);
    const auto* const data = std::bit_cast<const void*>(view.Get(packet::kDataAddress));
    recording->Add([bytes, block = BytesAt(data, view.Get(packet::kDataSize))](OutsideCalls& calls) {
      orvik::benchmarks::Send(calls, bytes, block);
    });
  }
  const orvik::benchmarks::Request timed;
  return orvik::benchmarks::processLibCommand(address);
}

FARPROC WINAPI GetProcAddress(HMODULE library, LPCSTR name) {
  static const auto next = Next(&GetProcAddress, "GetProcAddress");
  if (recording != nullptr) {
    recording->Add([number = recording->Object(library), wanted = std::string(name)](OutsideCalls& calls) {
      next(static_cast<HMODULE>(calls.Live(number)), wanted.c_str());
    });
  }
  FARPROC found = next(library, name);
  if (found == nullptr || std::string_view(name) != "ProcessLibCommand") return found;
  orvik::benchmarks::processLibCommand = std::bit_cast<std::uint32_t (*)(void*)>(found);
  return std::bit_cast<FARPROC>(&RecordedLibCommand);
}
}

hostkit::NumberHandler* get_number_handler() {
  static auto* const numbers =
      new orvik::benchmarks::RecordedNumbers(*Next(&get_number_handler, "get_number_handler")());
  return numbers;
}
