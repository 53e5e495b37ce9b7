#pragma once

#include "windef.h"

inline constexpr DWORD FILE_DEVICE_CONTROLLER = 0x00000004;
inline constexpr DWORD FILE_DEVICE_MASS_STORAGE = 0x0000002D;
inline constexpr DWORD METHOD_BUFFERED = 0;
inline constexpr DWORD FILE_ANY_ACCESS = 0;
inline constexpr DWORD FILE_READ_ACCESS = 0x0001;
inline constexpr DWORD FILE_WRITE_ACCESS = 0x0002;

#define CTL_CODE(deviceType, function, method, access) \
  (((deviceType) << 16) | ((access) << 14) | ((function) << 2) | (method))

inline constexpr DWORD IOCTL_STORAGE_BASE = FILE_DEVICE_MASS_STORAGE;
inline constexpr DWORD IOCTL_STORAGE_PREDICT_FAILURE =
    CTL_CODE(IOCTL_STORAGE_BASE, 0x0440, METHOD_BUFFERED, FILE_ANY_ACCESS);
