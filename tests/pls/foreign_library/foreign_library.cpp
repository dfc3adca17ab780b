// A prediction library of the tests' own. It has nothing to predict with; it tells what it was called with,
// and misbehaves when asked to.
#include "pls/pls_library.h"

#include <cstring>
#include <fstream>
#include <new>
#include <stdexcept>
#include <string>

namespace {

constexpr std::int32_t kHandle = 31;
constexpr std::int32_t kOpenError = 4;

std::int32_t CodeOfFile(const char* path) {
  return std::ifstream(path) ? 0 : kOpenError;
}

}  // namespace

std::int32_t LoadCalFile(const char* path) {
  return CodeOfFile(path) == 0 ? kHandle : 0;
}
std::int32_t UnLoadCalFile(std::int32_t handle) {
  return handle;
}
std::int32_t GetCalTotal(std::int32_t handle) {
  return handle + 1;
}
std::int32_t GetCalMemo(std::int32_t handle, std::int32_t number, char* memo) {
  const std::string text = std::to_string(handle) + "/" + std::to_string(number);
  std::memcpy(memo, text.c_str(), text.size() + 1);
  return 0;
}
std::int32_t LoadSpcDiskFile(std::int32_t, const char* path) {
  return CodeOfFile(path);
}
std::int32_t LoadAsciiDiskFile(std::int32_t, const char* path) {
  return CodeOfFile(path) + 1;
}
std::int32_t LoadClipboardText(std::int32_t handle) {
  return handle + 2;
}
std::int32_t LoadMemDouble(std::int32_t, const char* path) {
  return CodeOfFile(path) + 2;
}
std::int32_t PlsIqPredic(std::int32_t handle, std::int32_t number) {
  if (number == 2) throw std::runtime_error("no such detector");
  if (number == 3) throw std::bad_alloc();
  if (number == 4) throw 4;
  return handle + number;
}
std::int32_t GetItemSize(std::int32_t, const char* item) {
  return static_cast<std::int32_t>(std::strlen(item));
}
std::int32_t CopyItem(std::int32_t handle, double* destination, const char* item, std::int32_t count) {
  for (std::int32_t i = 0; i < count; ++i) destination[i] = item[i];
  return handle + count;
}
#ifndef VERITANE_PLS_INCOMPLETE
std::int32_t ReadCalFile(std::int32_t handle, std::int32_t number) {
  return handle - number;
}
#endif
