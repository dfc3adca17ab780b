// A prediction library that answers whatever a test tells it to and notes each call.
#pragma once

#include "platform/run_time_error.h"
#include "pls/prediction_library.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace veritane::pls {

class ScriptedLibrary : public PredictionLibrary {
public:
  // What a function returns, by its name: 0 where nothing is set, but the handle 5 and one calibration.
  std::map<std::string, std::int32_t> codes{{"LoadCalFile", 5}, {"GetCalTotal", 1}};
  // A function that raises instead of returning.
  std::string broken;
  std::map<std::string, std::vector<double>> items{{"ncomp", {1}}};
  // The size that is told for an item, where it is not its own.
  std::map<std::string, std::int32_t> sizes;
  // What copying an item returns; 0 where nothing is set.
  std::map<std::string, std::int32_t> copied;
  std::vector<std::string> memos{"Octane"};
  std::vector<std::string> calls;

  // The calls since the last time.
  std::vector<std::string> Calls() { return std::exchange(calls, {}); }

  std::int32_t LoadCalFile(const std::string& path) override { return Answer("LoadCalFile", path); }
  std::int32_t UnLoadCalFile(std::int32_t handle) override { return Answer("UnLoadCalFile", Text(handle)); }
  std::int32_t GetCalTotal(std::int32_t handle) override { return Answer("GetCalTotal", Text(handle)); }
  std::int32_t GetCalMemo(std::int32_t handle, std::int32_t calibration, std::string& memo) override {
    memo = memos.at(static_cast<std::size_t>(calibration) - 1);
    return Answer("GetCalMemo", Text(handle) + "," + Text(calibration));
  }
  std::int32_t LoadSpcDiskFile(std::int32_t handle, const std::string& path) override {
    return Answer("LoadSpcDiskFile", Text(handle) + "," + path);
  }
  std::int32_t LoadAsciiDiskFile(std::int32_t handle, const std::string& path) override {
    return Answer("LoadAsciiDiskFile", Text(handle) + "," + path);
  }
  std::int32_t LoadClipboardText(std::int32_t handle) override {
    return Answer("LoadClipboardText", Text(handle));
  }
  std::int32_t LoadMemDouble(std::int32_t handle, const std::string& path) override {
    return Answer("LoadMemDouble", Text(handle) + "," + path);
  }
  std::int32_t PlsIqPredic(std::int32_t handle, std::int32_t calibration) override {
    return Answer("PlsIqPredic", Text(handle) + "," + Text(calibration));
  }
  std::int32_t ReadCalFile(std::int32_t handle, std::int32_t calibration) override {
    return Answer("ReadCalFile", Text(handle) + "," + Text(calibration));
  }

  std::int32_t GetItemSize(std::int32_t handle, const std::string& item) override {
    Answer("GetItemSize", Text(handle) + "," + item);
    if (const auto told = sizes.find(item); told != sizes.end()) return told->second;
    const auto found = items.find(item);
    return found == items.end() ? 0 : static_cast<std::int32_t>(found->second.size());
  }
  std::int32_t CopyItem(std::int32_t handle, std::span<double> destination,
                        const std::string& item) override {
    Answer("CopyItem", Text(handle) + "," + item + "," + std::to_string(destination.size()));
    const std::vector<double>& values = items[item];
    std::copy_n(values.begin(), std::min(values.size(), destination.size()), destination.begin());
    return copied.contains(item) ? copied[item] : 0;
  }

private:
  static std::string Text(std::int32_t number) { return std::to_string(number); }

  std::int32_t Answer(const std::string& function, const std::string& arguments) {
    calls.push_back(function + "(" + arguments + ")");
    if (function == broken) throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall, function);
    return codes[function];
  }
};

// Text as a library keeps it: one character code a double, filled with zeros to `length`.
inline std::vector<double> CharacterCodes(const std::string& text, std::size_t length) {
  std::vector<double> codes(text.begin(), text.end());
  for (double& code : codes) {
    if (code < 0) code += 256;
  }
  codes.resize(length);
  return codes;
}

// Constituent names in their blocks of 32.
inline std::vector<double> NameBlocks(const std::vector<std::string>& names) {
  constexpr std::size_t kBlock = 32;
  std::vector<double> blocks;
  for (const std::string& name : names) {
    const std::vector<double> block = CharacterCodes(name, kBlock);
    blocks.insert(blocks.end(), block.begin(), block.end());
  }
  return blocks;
}

}  // namespace veritane::pls
