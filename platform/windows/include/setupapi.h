#pragma once

#include "windef.h"

using HDEVINFO = PVOID;

inline constexpr DWORD DIGCF_PRESENT = 0x00000002;
inline constexpr DWORD DIGCF_ALLCLASSES = 0x00000004;
inline constexpr DWORD DIGCF_DEVICEINTERFACE = 0x00000010;

inline constexpr DWORD SPDRP_DEVICEDESC = 0x00000000;

inline constexpr DWORD SPINT_ACTIVE = 0x00000001;

struct SP_DEVINFO_DATA {
  DWORD cbSize;
  GUID ClassGuid;
  DWORD DevInst;
  ULONG_PTR Reserved;
};
using PSP_DEVINFO_DATA = SP_DEVINFO_DATA*;

struct SP_DEVICE_INTERFACE_DATA {
  DWORD cbSize;
  GUID InterfaceClassGuid;
  DWORD Flags;
  ULONG_PTR Reserved;
};
using PSP_DEVICE_INTERFACE_DATA = SP_DEVICE_INTERFACE_DATA*;

/// The path runs on past the record's end, up to its terminating zero.
struct SP_DEVICE_INTERFACE_DETAIL_DATA_W {
  DWORD cbSize;
  WCHAR DevicePath[1];
};
using PSP_DEVICE_INTERFACE_DETAIL_DATA_W = SP_DEVICE_INTERFACE_DETAIL_DATA_W*;

extern "C" {

HDEVINFO WINAPI SetupDiGetClassDevsW(const GUID* classGuid, PCWSTR enumerator, HWND parent, DWORD flags);
BOOL WINAPI SetupDiDestroyDeviceInfoList(HDEVINFO set);
BOOL WINAPI SetupDiEnumDeviceInfo(HDEVINFO set, DWORD index, PSP_DEVINFO_DATA device);
BOOL WINAPI SetupDiEnumDeviceInterfaces(HDEVINFO set, PSP_DEVINFO_DATA device, const GUID* interfaceClass,
                                        DWORD index, PSP_DEVICE_INTERFACE_DATA found);
BOOL WINAPI SetupDiGetDeviceInterfaceDetailW(HDEVINFO set, PSP_DEVICE_INTERFACE_DATA found,
                                             PSP_DEVICE_INTERFACE_DETAIL_DATA_W detail, DWORD detailSize,
                                             PDWORD requiredSize, PSP_DEVINFO_DATA device);
BOOL WINAPI SetupDiGetDeviceRegistryPropertyW(HDEVINFO set, PSP_DEVINFO_DATA device, DWORD property, PDWORD type,
                                              PBYTE buffer, DWORD bufferSize, PDWORD requiredSize);
BOOL WINAPI SetupDiGetDeviceInstanceIdW(HDEVINFO set, PSP_DEVINFO_DATA device, PWSTR instanceId, DWORD size,
                                        PDWORD requiredSize);
}
