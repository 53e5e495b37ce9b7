#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include <windows.h>

using WideString = std::basic_string<WCHAR>;

/// The framework's string service; the module and its host each have an object with this interface, so its slots are
/// a binary contract. Strings are bytes of no particular encoding, a blank is the space character only. Stateless:
/// every operation may be called from any thread.
class StringHandler {
 public:
  /// What the bounded operations return on error.
  static constexpr std::uint32_t kError = 0xFFFFFFFFU;

  StringHandler() = default;
  StringHandler(const StringHandler&) = delete;
  StringHandler& operator=(const StringHandler&) = delete;

  virtual ~StringHandler() = default;  // slot 0

  /// Slot 1: every character before the first zero is a decimal digit; true for no character.
  virtual bool IsNumeric(const char* characters, std::size_t maximum) const = 0;
  /// Slot 2: appends the text without its blanks.
  virtual void RemoveBlanks(const std::string& text, std::string& output) const = 0;
  /// Slot 3: appends the characters 20h to 7Eh of the text.
  virtual void KeepPrintable(const std::string& text, std::string& output) const = 0;
  /// Slot 4: the text without the characters of the set; nothing happens when either is empty.
  virtual void RemoveCharacters(const std::string& set, const std::string& text, std::string& output) const = 0;
  /// Slot 5: removes leading and trailing blanks.
  virtual void Trim(std::string& text) const = 0;
  /// Slot 6: removes leading and trailing blanks.
  virtual void TrimWide(WideString& text) const = 0;
  /// Slot 7: not empty, and upper-casing changes nothing.
  virtual bool IsUpperCase(std::string text) const = 0;
  virtual void ToUpper(std::string& text) const = 0;                                      // slot 8
  virtual void ToLower(std::string& text) const = 0;                                      // slot 9
  virtual bool StartsWith(const std::string& text, const std::string& prefix) const = 0;  // slot 10
  /// Slot 11: the pieces between delimiters; a trailing delimiter starts no further piece.
  virtual void Split(std::vector<std::string>& output, const std::string& text, char delimiter) const = 0;
  /// Slot 12: as strncmp.
  virtual int CompareN(const char* left, const char* right, std::size_t count) const = 0;
  /// Slot 13: characters written, or `kError`, also when they don't fit.
  virtual std::uint32_t FormatBounded(char* buffer, std::size_t size, const char* format, ...) const = 0;
  /// Slot 14: as strncpy_s.
  virtual int CopyN(char* destination, std::size_t size, const char* source, std::size_t count) const = 0;
  /// Slot 15: copies the source up to its first zero; `kError` when a pointer is null, it does not fit with its zero,
  /// or the areas overlap.
  virtual std::uint32_t CopyBounded(char* destination, std::size_t size, const char* source,
                                    std::size_t maximum) const = 0;
  /// Slot 16: characters before the first zero, at most the maximum; 0 for null.
  virtual std::size_t BoundedLength(const char* characters, std::size_t maximum) const = 0;
  /// Slot 17: as strncat_s.
  virtual int AppendN(char* destination, std::size_t size, const char* source, std::size_t count) const = 0;
  /// Slot 18: as wcstombs_s.
  virtual int WideToMultiByte(std::size_t* converted, char* destination, std::size_t size, const WCHAR* source,
                              std::size_t count) const = 0;
  /// Slot 19: as mbstowcs_s.
  virtual int MultiByteToWide(std::size_t* converted, WCHAR* destination, std::size_t size, const char* source,
                              std::size_t count) const = 0;
  /// Slot 20: as slot 16.
  virtual std::size_t BoundedWideLength(const WCHAR* characters, std::size_t maximum) const = 0;
  /// Slot 21: as _localtime64_s.
  virtual int LocalTime(std::tm* result, std::int64_t time) const = 0;
  /// Slot 22: always zero-terminated; characters written, or `kError`.
  virtual std::uint32_t Format(char* buffer, std::size_t count, const char* format, ...) const = 0;
  /// Slot 23: as vfprintf_s.
  virtual int PrintToFile(std::FILE* file, const char* format, ...) const = 0;
  /// Slot 24: exactly `count` bytes, zero bytes included.
  virtual void FromBytes(std::string& output, const void* bytes, std::size_t count) const = 0;
  /// Slot 25: the non-empty pieces between characters of the delimiter set.
  virtual void Tokenize(std::vector<std::string>& output, std::string text, std::string delimiters) const = 0;
  /// Slot 26: the text before its first zero.
  virtual void CopyUntilZero(std::string& output, const std::string& text) const;
  /// Slot 27: the characters before the first zero without leading and trailing blanks, "?" for each outside 20h to
  /// 7Eh, cut to what fits with a terminating zero. Sizes in bytes. Returns `output`.
  virtual char* CopyPrintable(char* output, std::int32_t outputSize, const char* input,
                              std::int32_t inputLength) const;
  /// Slot 28: when the last character of the text occurs in the suffix, cuts as many characters as the suffix has.
  virtual void CutSuffix(std::string& text, std::string suffix) const = 0;
  /// Slot 29: each byte becomes one wide character.
  virtual void ToWide(WideString& output, const std::string& text) const = 0;
};

/// This library's own handler: made on first use, never destroyed.
StringHandler* OwnStringHandler();
