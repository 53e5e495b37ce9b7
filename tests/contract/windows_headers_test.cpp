// Sizes, offsets and constants of the Windows API that the module relies on. This file is compiled against the
// stand-in headers and against the real ones, so that the two cannot drift apart.

#include <windows.h>

#include <winioctl.h>
#include <setupapi.h>
#include <shellscalingapi.h>
#include <shlobj.h>
// Needs the headers above.
#include <ntddscsi.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>

namespace {

static_assert(sizeof(BYTE) == 1 && sizeof(WORD) == 2 && sizeof(DWORD) == 4 && sizeof(ULONG_PTR) == 8);
static_assert(sizeof(LONG) == 4 && sizeof(BOOL) == 4 && sizeof(WCHAR) == 2 && sizeof(HANDLE) == 8);
static_assert(sizeof(DWORD_PTR) == 8 && sizeof(ULONGLONG) == 8 && sizeof(HMODULE) == 8 && sizeof(HKEY) == 8);
static_assert(std::is_unsigned_v<DWORD> && std::is_signed_v<LONG> && std::is_pointer_v<HANDLE>);
static_assert(sizeof(TEXT("ab")) == 3 * sizeof(WCHAR));

static_assert(sizeof(GUID) == 16 && offsetof(GUID, Data2) == 4 && offsetof(GUID, Data4) == 8);
static_assert(sizeof(SP_DEVINFO_DATA) == 32 && offsetof(SP_DEVINFO_DATA, ClassGuid) == 4);
static_assert(offsetof(SP_DEVINFO_DATA, DevInst) == 20 && offsetof(SP_DEVINFO_DATA, Reserved) == 24);
static_assert(sizeof(SP_DEVICE_INTERFACE_DATA) == 32 && offsetof(SP_DEVICE_INTERFACE_DATA, Flags) == 20);
static_assert(sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_W) == 8);
static_assert(offsetof(SP_DEVICE_INTERFACE_DETAIL_DATA_W, DevicePath) == 4);

static_assert(sizeof(MSG) == 48 && offsetof(MSG, message) == 8 && sizeof(HRESULT) == 4);
static_assert(sizeof(HIGHCONTRASTW) == 16 && offsetof(HIGHCONTRASTW, dwFlags) == 4);
static_assert(sizeof(INPUT) == 40 && offsetof(INPUT, ki) == 8 && sizeof(MOUSEINPUT) == 32);
static_assert(offsetof(KEYBDINPUT, wScan) == 2 && offsetof(KEYBDINPUT, dwFlags) == 4);

static_assert(WM_THEMECHANGED == 0x031A && SPI_GETHIGHCONTRAST == 0x42 && SPI_GETSCREENREADER == 0x46);
static_assert(HCF_HIGHCONTRASTON == 1 && HCF_AVAILABLE == 2 && READ_CONTROL == 0x20000);
static_assert(COLOR_BACKGROUND == 1 && COLOR_WINDOWTEXT == 8 && COLOR_HIGHLIGHT == 13 && COLOR_HIGHLIGHTTEXT == 14);
static_assert(COLOR_BTNFACE == 15 && COLOR_GRAYTEXT == 17 && COLOR_BTNTEXT == 18 && COLOR_INFOTEXT == 23);
static_assert(INPUT_KEYBOARD == 1 && KEYEVENTF_KEYUP == 2 && VK_LEFT == 0x25 && VK_NUMPAD1 == 0x61);
static_assert(MONITOR_DEFAULTTOPRIMARY == 1 && MDT_EFFECTIVE_DPI == 0 && PROCESS_PER_MONITOR_DPI_AWARE == 2);
static_assert(GENERIC_READ == 0x80000000U && GENERIC_WRITE == 0x40000000U);
static_assert(FILE_SHARE_READ == 1 && FILE_SHARE_WRITE == 2 && OPEN_EXISTING == 3);
static_assert(FILE_FLAG_OVERLAPPED == 0x40000000U);
static_assert(DIGCF_PRESENT == 2 && DIGCF_ALLCLASSES == 4 && DIGCF_DEVICEINTERFACE == 16);
static_assert(SPDRP_DEVICEDESC == 0 && RRF_RT_REG_SZ == 2 && REG_SZ == 1 && CP_UTF8 == 65001);
static_assert(IOCTL_SCSI_MINIPORT == 0x0004D008U && IOCTL_SCSI_PASS_THROUGH == 0x0004D004U);
static_assert(IOCTL_ATA_PASS_THROUGH == 0x0004D02CU && IOCTL_STORAGE_PREDICT_FAILURE == 0x002D1100U);
static_assert(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT == 2 && GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS == 4);

static_assert(ERROR_SUCCESS == 0 && ERROR_FILE_NOT_FOUND == 2 && ERROR_ACCESS_DENIED == 5);
static_assert(ERROR_INVALID_HANDLE == 6 && ERROR_INVALID_PARAMETER == 87 && ERROR_INSUFFICIENT_BUFFER == 122);
static_assert(ERROR_MOD_NOT_FOUND == 126 && ERROR_PROC_NOT_FOUND == 127 && ERROR_MORE_DATA == 234);
static_assert(ERROR_NO_MORE_ITEMS == 259 && ERROR_IO_DEVICE == 1117);

static_assert(std::is_same_v<decltype(GetLastError()), DWORD>);
static_assert(std::is_same_v<decltype(SetThreadAffinityMask(nullptr, 0)), DWORD_PTR>);

TEST(WindowsHeadersTest, PseudoHandlesHaveTheirValues) {
  EXPECT_EQ(reinterpret_cast<ULONG_PTR>(INVALID_HANDLE_VALUE), ~ULONG_PTR{0});
  EXPECT_EQ(reinterpret_cast<ULONG_PTR>(HKEY_LOCAL_MACHINE), 0xFFFFFFFF80000002U);
}

TEST(WindowsHeadersTest, ProgramDataIsTheKnownFolder) {
  const GUID expected = {0x62AB5D82, 0xFDC1, 0x4DC3, {0xA9, 0xDD, 0x07, 0x0D, 0x1D, 0x49, 0x5D, 0x97}};
  EXPECT_TRUE(FOLDERID_ProgramData == expected);
}

}  // namespace
