// The interface of the PLS prediction library, PLSIQP32.DLL on Windows and libplsiqp32.so on Linux. It is
// loaded by name, so a binding takes the types of these declarations and looks the functions up.
//
// All handles, codes and counts are 32-bit signed. Text is single-byte and zero-terminated; a path is one as
// the operating system takes it. Functions that return a code return 0 for success, else:
//
//   1 memory allocation                       7 preprocessing
//   2 calibration file open                   8 no such calibration
//   3 calibration file read                   9 not enough calibration information
//   4 source data open                       10 mathematics
//   5 source data read                       11 item copy
//   6 source data does not match the calibration
//
// docs/pls-library.md lists the items with their sizes, layouts and units.
#pragma once

#include <cstdint>

// The standard calling convention of the system: it matters to 32-bit Windows alone, and only a macro can
// name it.
#ifdef _WIN32
#define VERITANE_PLS_CALL __stdcall
#else
#define VERITANE_PLS_CALL
#endif

extern "C" {

#ifndef _WIN32
#pragma GCC visibility push(default)
#endif

// Opens a calibration file; the handle is never 0 unless the file could not be loaded. Several files may be
// open.
std::int32_t VERITANE_PLS_CALL LoadCalFile(const char* path);

// Closes the file and drops its spectrum and prediction. 2 for a handle that is not open.
std::int32_t VERITANE_PLS_CALL UnLoadCalFile(std::int32_t handle);

// The number of calibrations in the file, which is no code; 0 for a handle that is not open.
std::int32_t VERITANE_PLS_CALL GetCalTotal(std::int32_t handle);

// The room that GetCalMemo needs: a memo is cut to one less, and ends with a zero.
inline constexpr std::int32_t kPlsMemoBufferSize = 256;

// Writes the memo of calibration `number` (from 1) into `memo`, which has room for kPlsMemoBufferSize
// characters.
std::int32_t VERITANE_PLS_CALL GetCalMemo(std::int32_t handle, std::int32_t number, char* memo);

// Load the spectrum that PlsIqPredic predicts next: from an SPC file, from a text file, from text on the
// clipboard, from a file of IEEE floats. The items of an earlier prediction stay as they are.
std::int32_t VERITANE_PLS_CALL LoadSpcDiskFile(std::int32_t handle, const char* path);
std::int32_t VERITANE_PLS_CALL LoadAsciiDiskFile(std::int32_t handle, const char* path);
std::int32_t VERITANE_PLS_CALL LoadClipboardText(std::int32_t handle);
std::int32_t VERITANE_PLS_CALL LoadMemDouble(std::int32_t handle, const char* path);

// Predicts the loaded spectrum by calibration `number` (from 1). On failure there is no prediction any more.
std::int32_t VERITANE_PLS_CALL PlsIqPredic(std::int32_t handle, std::int32_t number);

// The number of doubles in an item, 0 when there is none. For "bands" it is the number of records of 5
// doubles.
std::int32_t VERITANE_PLS_CALL GetItemSize(std::int32_t handle, const char* item);

// Copies an item to `destination`, which has room for `count` doubles. "calfac", "flags", "prep", "bsln" and
// "thick" return how many values were copied, "bands" how many records; all others return a code and copy
// nothing when the room is too small.
std::int32_t VERITANE_PLS_CALL CopyItem(std::int32_t handle, double* destination, const char* item,
                                        std::int32_t count);

// Makes the items of calibration `number` (from 1) available without a prediction.
std::int32_t VERITANE_PLS_CALL ReadCalFile(std::int32_t handle, std::int32_t number);

// Optional, and only in the substitute: where LoadClipboardText gets its text from. `read` stores at most
// `capacity` bytes at `text` and returns the length of the whole text, negative when the clipboard holds
// none. A null pointer takes the source away; without one LoadClipboardText returns 4.
using PlsClipboardReader = std::int32_t(VERITANE_PLS_CALL*)(char* text, std::int32_t capacity);
void VERITANE_PLS_CALL SetPlsClipboardReader(PlsClipboardReader read);

#ifndef _WIN32
#pragma GCC visibility pop
#endif

}  // extern "C"
