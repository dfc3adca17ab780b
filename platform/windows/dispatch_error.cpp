// Errors of automation.
#include "platform/windows/dispatch_error.h"

#include "platform/automation.h"
#include "platform/texts.h"
#include "platform/windows/dispatch_value.h"
#include "platform/windows/system_text.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace veritane::platform {

namespace {

std::string Hexadecimal(HRESULT result) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "0x%08lX", static_cast<unsigned long>(result));
  return text.data();
}

bool MeansServerGone(HRESULT result) {
  switch (result) {
    case RPC_E_SERVER_DIED:
    case RPC_E_SERVER_DIED_DNE:
    case RPC_E_DISCONNECTED:
    case RPC_E_CONNECTION_TERMINATED:
    case CO_E_OBJNOTCONNECTED:
    case HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE):
    case HRESULT_FROM_WIN32(RPC_S_CALL_FAILED):
    case HRESULT_FROM_WIN32(RPC_S_CALL_FAILED_DNE):
    case HRESULT_FROM_WIN32(RPC_S_UNKNOWN_IF):
      return true;
    default:
      return false;
  }
}

// The part of a text that the system has given away.
std::string Taken(BSTR& text) {
  std::string taken = Utf8Text({text, SysStringLen(text)});
  SysFreeString(text);
  text = nullptr;
  return taken;
}

// Results of this kind carry a number of run-time errors in their low half.
constexpr HRESULT kNumbered = static_cast<HRESULT>(0x800A0000);
constexpr HRESULT kUpperHalf = static_cast<HRESULT>(0xFFFF0000);

}  // namespace

std::string SystemText(HRESULT result) {
  const std::string words = SystemWords(static_cast<DWORD>(result));
  return words.empty() ? Hexadecimal(result) : words + " (" + Hexadecimal(result) + ")";
}

bool MeansServerBusy(HRESULT result) {
  return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER ||
         result == RPC_E_SERVERCALL_REJECTED;
}

RunTimeError ErrorOfCall(HRESULT result, const std::string& member) {
  if (MeansServerGone(result)) {
    return {kServerGone, Text(TextId::kApplicationGone, {member, SystemText(result)})};
  }
  if (MeansServerBusy(result)) {
    return {kAutomationError, Text(TextId::kApplicationBusy, {member, SystemText(result)})};
  }
  switch (result) {
    case DISP_E_UNKNOWNNAME:
    case DISP_E_MEMBERNOTFOUND:
      return {kNoSuchMember, Text(TextId::kMemberMissing, {member})};
    case DISP_E_BADPARAMCOUNT:
    case DISP_E_PARAMNOTOPTIONAL:
      return {kWrongArgumentCount, Text(TextId::kArgumentCountWrong, {member})};
    case DISP_E_TYPEMISMATCH:
    case DISP_E_BADVARTYPE:
      return RunTimeError(ErrorNumber::kTypeMismatch, member);
    case DISP_E_OVERFLOW:
      return RunTimeError(ErrorNumber::kOverflow, member);
    default:
      return {kAutomationError, Text(TextId::kAutomationFailed, {member, SystemText(result)})};
  }
}

RunTimeError ReportedError(EXCEPINFO& reported, const std::string& member) {
  if (reported.pfnDeferredFillIn != nullptr) reported.pfnDeferredFillIn(&reported);
  const std::string source = Taken(reported.bstrSource);
  std::string text = Taken(reported.bstrDescription);
  Taken(reported.bstrHelpFile);
  if (reported.wCode != 0) {
    return {reported.wCode, text.empty() ? source + ": " + member : text};
  }
  if ((reported.scode & kUpperHalf) == kNumbered) {
    const int number = reported.scode & ~kUpperHalf;
    return {number, text.empty() ? source + ": " + member : text};
  }
  if (MeansServerGone(reported.scode) || MeansServerBusy(reported.scode))
    return ErrorOfCall(reported.scode, member);
  return {kAutomationError,
          text.empty() ? Text(TextId::kAutomationFailed, {member, SystemText(reported.scode)}) : text};
}

HRESULT ResultOf(const RunTimeError& error) {
  const int number = error.Number();
  return number > 0 && number <= 0xFFFF ? kNumbered | number : static_cast<HRESULT>(E_FAIL);
}

}  // namespace veritane::platform
