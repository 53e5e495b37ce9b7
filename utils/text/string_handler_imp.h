#pragma once

#include "utils/text/string_handler.h"

/// The common base of the platforms' string handlers.
class StringHandlerImp : public StringHandler {};

/// The string handler over the Windows runtime library.
class WinStringHandlerImp final : public StringHandlerImp {
 public:
  bool IsNumeric(const char* characters, std::size_t maximum) const override;
  void RemoveBlanks(const std::string& text, std::string& output) const override;
  void KeepPrintable(const std::string& text, std::string& output) const override;
  void RemoveCharacters(const std::string& set, const std::string& text, std::string& output) const override;
  void Trim(std::string& text) const override;
  void TrimWide(WideString& text) const override;
  bool IsUpperCase(std::string text) const override;
  void ToUpper(std::string& text) const override;
  void ToLower(std::string& text) const override;
  bool StartsWith(const std::string& text, const std::string& prefix) const override;
  void Split(std::vector<std::string>& output, const std::string& text, char delimiter) const override;
  int CompareN(const char* left, const char* right, std::size_t count) const override;
  std::uint32_t FormatBounded(char* buffer, std::size_t size, const char* format, ...) const override;
  int CopyN(char* destination, std::size_t size, const char* source, std::size_t count) const override;
  std::uint32_t CopyBounded(char* destination, std::size_t size, const char* source,
                            std::size_t maximum) const override;
  std::size_t BoundedLength(const char* characters, std::size_t maximum) const override;
  int AppendN(char* destination, std::size_t size, const char* source, std::size_t count) const override;
  int WideToMultiByte(std::size_t* converted, char* destination, std::size_t size, const WCHAR* source,
                      std::size_t count) const override;
  int MultiByteToWide(std::size_t* converted, WCHAR* destination, std::size_t size, const char* source,
                      std::size_t count) const override;
  std::size_t BoundedWideLength(const WCHAR* characters, std::size_t maximum) const override;
  int LocalTime(std::tm* result, std::int64_t time) const override;
  std::uint32_t Format(char* buffer, std::size_t count, const char* format, ...) const override;
  int PrintToFile(std::FILE* file, const char* format, ...) const override;
  void FromBytes(std::string& output, const void* bytes, std::size_t count) const override;
  void Tokenize(std::vector<std::string>& output, std::string text, std::string delimiters) const override;
  void CutSuffix(std::string& text, std::string suffix) const override;
  void ToWide(WideString& output, const std::string& text) const override;
};
