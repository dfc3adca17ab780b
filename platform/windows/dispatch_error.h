// What a failed call of automation means to the program.
#pragma once

#include "platform/run_time_error.h"

#include <windows.h>

#include <oleauto.h>

#include <string>

namespace veritane::platform {

// The system's words for a result, without a line end.
std::string SystemText(HRESULT result);

// Whether the server has refused the call for being busy, so that it can be made again.
bool MeansServerBusy(HRESULT result);

// The error of a call to `member` that failed with `result`: 462 for a server that is gone, 438, 450, 13, 6
// for calls that the object does not take, 440 for everything else, among it a server that stayed busy.
RunTimeError ErrorOfCall(HRESULT result, const std::string& member);

// The error that the object itself reported, with its text; frees what `reported` holds.
RunTimeError ReportedError(EXCEPINFO& reported, const std::string& member);

// The other way round, for objects that the program shows: a result that carries the error's number.
HRESULT ResultOf(const RunTimeError& error);

}  // namespace veritane::platform
