// The message filter, and the calls that go through it.
#include "platform/windows/message_filter.h"

#include "platform/automation_waiting.h"
#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "platform/windows/dispatch_error.h"

#include <utility>

namespace veritane::platform {

namespace {

// Lets windows be drawn. Takes away what the user typed and clicked, because no other action may begin before
// the running one has ended; returns whether there was a key or a click.
bool KeepDrawn() {
  constexpr std::pair<UINT, UINT> kInput[] = {
      {WM_KEYFIRST, WM_KEYLAST}, {WM_LBUTTONDOWN, WM_MOUSELAST}, {WM_NCLBUTTONDOWN, WM_NCMBUTTONDBLCLK}};
  bool input = false;
  MSG message;
  for (const auto& [first, last] : kInput) {
    while (PeekMessageW(&message, nullptr, first, last, PM_REMOVE | PM_NOYIELD) != FALSE) input = true;
  }
  // A window that does not answer to its painting would be asked for ever.
  constexpr int kMostPaintings = 100;
  for (int painting = 0; painting < kMostPaintings &&
                         PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE | PM_NOYIELD) != FALSE;
       ++painting) {
    DispatchMessageW(&message);
  }
  return input;
}

}  // namespace

class MessageFilter : public IMessageFilter {
public:
  explicit MessageFilter(ShowWaiting show) : show_(std::move(show)) {}
  virtual ~MessageFilter() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interface_id, void** object) override {
    if (!IsEqualIID(interface_id, IID_IUnknown) && !IsEqualIID(interface_id, IID_IMessageFilter)) {
      *object = nullptr;
      return E_NOINTERFACE;
    }
    *object = static_cast<IMessageFilter*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  // Nobody calls into the program but with an answer.
  DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
    return SERVERCALL_ISHANDLED;
  }

  DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD elapsed, DWORD) override {
    constexpr DWORD kGiveUp = static_cast<DWORD>(-1);
    const auto delay = RetryDelay(waiting_, elapsed);
    if (!delay) return kGiveUp;
    ShowText();
    KeepDrawn();
    return static_cast<DWORD>(*delay);
  }

  DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD elapsed, DWORD) override {
    if (IsOverdue(waiting_, elapsed)) return PENDINGMSG_CANCELCALL;
    if (KeepDrawn()) ShowText();
    return PENDINGMSG_WAITDEFPROCESS;
  }

  void SetWaiting(const AutomationWaiting& waiting) { waiting_ = waiting; }
  const AutomationWaiting& Waiting() const { return waiting_; }

  void ShowText() {
    if (shown_ || !show_) return;
    shown_ = true;
    show_(waiting_.pendingText);
  }
  void HideText() {
    if (!std::exchange(shown_, false)) return;
    show_("");
  }

private:
  ULONG references_ = 1;
  ShowWaiting show_;
  bool shown_ = false;
  // What holds until the program has set its own.
  AutomationWaiting waiting_{.pendingText = Text(TextId::kWaitingForServer)};
};

AutomationThread::AutomationThread(ShowWaiting show) {
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
    throw RunTimeError(kAutomationError, Text(TextId::kNoAutomationThread));
  }
  filter_ = new MessageFilter(std::move(show));
  IMessageFilter* former = nullptr;
  CoRegisterMessageFilter(filter_, &former);
  if (former != nullptr) former->Release();
}

AutomationThread::~AutomationThread() {
  CoRegisterMessageFilter(nullptr, nullptr);
  filter_->Release();
  CoUninitialize();
}

void AutomationThread::SetWaiting(const AutomationWaiting& waiting) {
  filter_->SetWaiting(waiting);
}

// The system asks the filter about a refused call. Not every one does so: there the refusal comes back here,
// where the same rule holds.
HRESULT AutomationThread::Carry(const std::function<HRESULT()>& call) {
  const ULONGLONG start = GetTickCount64();
  HRESULT result = call();
  while (MeansServerBusy(result)) {
    const auto delay = RetryDelay(filter_->Waiting(), static_cast<std::int64_t>(GetTickCount64() - start));
    if (!delay) break;
    filter_->ShowText();
    KeepDrawn();
    Sleep(static_cast<DWORD>(*delay));
    result = call();
  }
  filter_->HideText();
  return result;
}

}  // namespace veritane::platform
