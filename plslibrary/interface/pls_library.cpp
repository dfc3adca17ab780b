// The library's functions: they check every argument, let no exception out, and find the session behind a
// handle.
#include "pls/pls_library.h"

#include "plslibrary/items.h"
#include "plslibrary/pls_error.h"
#include "plslibrary/prediction_session.h"
#include "plslibrary/spc_reader.h"
#include "plslibrary/spectrum_text_reader.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <map>
#include <mutex>
#include <new>
#include <string>
#include <utility>

namespace {

using namespace veritane::plslibrary;

// What the functions share. Handles are not given out twice, so a stale one finds nothing.
struct OpenSessions {
  std::mutex mutex;
  std::map<std::int32_t, PredictionSession> sessions;
  std::int32_t lastHandle = 0;
  PlsClipboardReader readClipboard = nullptr;
};

OpenSessions& Open() {
  static OpenSessions open;
  return open;
}

constexpr std::int32_t AsNumber(PlsCode code) {
  return static_cast<std::int32_t>(code);
}

// Runs `work` on the open sessions, one call at a time, and turns whatever it throws into a code.
template <typename Work>
std::int32_t Guarded(Work work) noexcept {
  try {
    OpenSessions& open = Open();
    const std::lock_guard lock(open.mutex);
    return work(open);
  } catch (const PlsError& error) {
    return AsNumber(error.Code());
  } catch (const std::bad_alloc&) {
    return AsNumber(PlsCode::kMemory);
  } catch (...) {
    // The readers announce all that they foresee; what is left went wrong in computing.
    return AsNumber(PlsCode::kMathematics);
  }
}

PredictionSession& SessionOf(OpenSessions& open, std::int32_t handle) {
  const auto found = open.sessions.find(handle);
  if (found == open.sessions.end()) throw PlsError(PlsCode::kCalibrationOpen, "no such handle");
  return found->second;
}

// The whole of a plain file. Devices and folders are none: reading them may never end.
std::string BytesOf(const char* path, PlsCode open_fault, PlsCode read_fault) {
  if (path == nullptr) throw PlsError(open_fault, "no path");
  std::error_code error;
  const std::filesystem::path file(path);
  if (!std::filesystem::is_regular_file(file, error)) throw PlsError(open_fault, "no such file");
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw PlsError(open_fault, "the file cannot be opened");
  std::string bytes;
  for (std::array<char, 65536> block{}; stream.read(block.data(), block.size()) || stream.gcount() > 0;) {
    bytes.append(block.data(), static_cast<std::size_t>(stream.gcount()));
  }
  if (stream.bad()) throw PlsError(read_fault, "the file cannot be read");
  return bytes;
}

std::string ClipboardText(PlsClipboardReader read) {
  const PlsError none(PlsCode::kSourceOpen, "there is no text on the clipboard");
  if (read == nullptr) throw none;
  std::string text;
  // The clipboard may change between the calls.
  for (int attempt = 0; attempt < 3; ++attempt) {
    const std::int32_t length = read(text.data(), static_cast<std::int32_t>(text.size()));
    if (length < 0) throw none;
    const bool fits = std::cmp_less_equal(length, text.size());
    text.resize(static_cast<std::size_t>(length));
    if (fits) return text;
  }
  throw none;
}

// Hands the session the spectrum that `read` makes, and none when it fails.
template <typename Read>
std::int32_t LoadInto(std::int32_t handle, Read read) noexcept {
  return Guarded([&](OpenSessions& open) {
    PredictionSession& session = SessionOf(open, handle);
    session.SetSpectrum(std::nullopt);
    try {
      session.SetSpectrum(read(open));
    } catch (const SpectrumReadError& error) {
      throw PlsError(PlsCode::kSourceRead, error.what());
    }
    return AsNumber(PlsCode::kNoError);
  });
}

template <typename Read>
std::int32_t LoadFileInto(std::int32_t handle, const char* path, Read read) noexcept {
  return LoadInto(
      handle, [&](OpenSessions&) { return read(BytesOf(path, PlsCode::kSourceOpen, PlsCode::kSourceRead)); });
}

// These items report how many values were copied, all others a code.
bool IsCounted(std::string_view item) {
  constexpr std::array<std::string_view, 6> kCounted{"calfac", "bands", "flags", "prep", "bsln", "thick"};
  return std::ranges::find(kCounted, item) != kCounted.end();
}

std::size_t DoublesInRecord(std::string_view item) {
  return item == "bands" ? kBandRecord : 1;
}

std::optional<std::vector<double>> ItemOf(OpenSessions& open, std::int32_t handle, const char* item) {
  if (item == nullptr) return std::nullopt;
  return SessionOf(open, handle).Item(item);
}

}  // namespace

std::int32_t VERITANE_PLS_CALL LoadCalFile(const char* path) {
  std::int32_t handle = 0;
  const std::int32_t code = Guarded([&](OpenSessions& open) {
    if (open.lastHandle == std::numeric_limits<std::int32_t>::max()) return AsNumber(PlsCode::kMemory);
    PredictionSession session(BytesOf(path, PlsCode::kCalibrationOpen, PlsCode::kCalibrationRead));
    open.sessions.emplace(open.lastHandle + 1, std::move(session));
    handle = ++open.lastHandle;
    return AsNumber(PlsCode::kNoError);
  });
  return code == AsNumber(PlsCode::kNoError) ? handle : 0;
}

std::int32_t VERITANE_PLS_CALL UnLoadCalFile(std::int32_t handle) {
  return Guarded([&](OpenSessions& open) {
    return AsNumber(open.sessions.erase(handle) == 1 ? PlsCode::kNoError : PlsCode::kCalibrationOpen);
  });
}

std::int32_t VERITANE_PLS_CALL GetCalTotal(std::int32_t handle) {
  std::int32_t total = 0;
  Guarded([&](OpenSessions& open) {
    total = SessionOf(open, handle).Total();
    return AsNumber(PlsCode::kNoError);
  });
  return total;
}

std::int32_t VERITANE_PLS_CALL GetCalMemo(std::int32_t handle, std::int32_t number, char* memo) {
  if (memo == nullptr) return AsNumber(PlsCode::kItemCopy);
  memo[0] = '\0';
  return Guarded([&](OpenSessions& open) {
    const std::string text = SessionOf(open, handle).Memo(number).substr(0, kPlsMemoBufferSize - 1);
    std::memcpy(memo, text.c_str(), text.size() + 1);
    return AsNumber(PlsCode::kNoError);
  });
}

std::int32_t VERITANE_PLS_CALL LoadSpcDiskFile(std::int32_t handle, const char* path) {
  return LoadFileInto(handle, path,
                      [](const std::string& bytes) { return std::move(ReadSpc(bytes).front()); });
}

std::int32_t VERITANE_PLS_CALL LoadAsciiDiskFile(std::int32_t handle, const char* path) {
  return LoadFileInto(handle, path, ReadSpectrumText);
}

std::int32_t VERITANE_PLS_CALL LoadClipboardText(std::int32_t handle) {
  return LoadInto(handle,
                  [](OpenSessions& open) { return ReadSpectrumText(ClipboardText(open.readClipboard)); });
}

std::int32_t VERITANE_PLS_CALL LoadMemDouble(std::int32_t handle, const char* path) {
  return LoadFileInto(handle, path, ReadIeeeFloats);
}

std::int32_t VERITANE_PLS_CALL PlsIqPredic(std::int32_t handle, std::int32_t number) {
  return Guarded([&](OpenSessions& open) {
    SessionOf(open, handle).PredictBy(number);
    return AsNumber(PlsCode::kNoError);
  });
}

std::int32_t VERITANE_PLS_CALL GetItemSize(std::int32_t handle, const char* item) {
  std::int32_t size = 0;
  Guarded([&](OpenSessions& open) {
    if (const auto values = ItemOf(open, handle, item)) {
      size = static_cast<std::int32_t>(values->size() / DoublesInRecord(item));
    }
    return AsNumber(PlsCode::kNoError);
  });
  return size;
}

std::int32_t VERITANE_PLS_CALL CopyItem(std::int32_t handle, double* destination, const char* item,
                                        std::int32_t count) {
  if (item == nullptr) return AsNumber(PlsCode::kItemCopy);
  std::int32_t records = 0;
  const std::int32_t code = Guarded([&](OpenSessions& open) {
    const auto values = ItemOf(open, handle, item);
    if (!values || destination == nullptr || std::cmp_less(count, values->size())) {
      return AsNumber(PlsCode::kItemCopy);
    }
    std::ranges::copy(*values, destination);
    records = static_cast<std::int32_t>(values->size() / DoublesInRecord(item));
    return AsNumber(PlsCode::kNoError);
  });
  return IsCounted(item) ? records : code;
}

std::int32_t VERITANE_PLS_CALL ReadCalFile(std::int32_t handle, std::int32_t number) {
  return Guarded([&](OpenSessions& open) {
    SessionOf(open, handle).ReadCalibration(number);
    return AsNumber(PlsCode::kNoError);
  });
}

void VERITANE_PLS_CALL SetPlsClipboardReader(PlsClipboardReader read) {
  Guarded([&](OpenSessions& open) {
    open.readClipboard = read;
    return AsNumber(PlsCode::kNoError);
  });
}
