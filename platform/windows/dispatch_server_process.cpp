// The process that serves objects: its class, its message loop, and how it tells callers that it is busy.
#include "platform/automation_server.h"
#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "platform/windows/dispatch_error.h"
#include "platform/windows/dispatch_server.h"
#include "platform/windows/dispatch_value.h"
#include "platform/windows/system_text.h"

#include <windows.h>

#include <objbase.h>

#include <utility>

namespace veritane::platform {

namespace {

void Require(HRESULT result, TextId step) {
  if (FAILED(result)) {
    throw RunTimeError(kAutomationError, Text(TextId::kErrorWithDetail, {Text(step), SystemText(result)}));
  }
}

// The parts that the two objects of the process share: it lives as long as the process serves.
template <typename Interface>
class ProcessObject : public Interface {
public:
  explicit ProcessObject(const IID& interface_id) : interface_id_(interface_id) {}
  virtual ~ProcessObject() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interface_id, void** object) override {
    if (!IsEqualIID(interface_id, IID_IUnknown) && !IsEqualIID(interface_id, interface_id_)) {
      *object = nullptr;
      return E_NOINTERFACE;
    }
    *object = static_cast<Interface*>(this);
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

private:
  const IID& interface_id_;
};

class ObjectFactory : public ProcessObject<IClassFactory> {
public:
  explicit ObjectFactory(std::shared_ptr<ServedObject> object)
      : ProcessObject(IID_IClassFactory), object_(std::move(object)) {}

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID interface_id, void** object) override {
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    IDispatch* const served = ServeObject(object_);
    const HRESULT result = served->QueryInterface(interface_id, object);
    served->Release();
    return result;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    if (lock != FALSE) {
      CoAddRefServerProcess();
    } else if (CoReleaseServerProcess() == 0) {
      PostQuitMessage(0);
    }
    return S_OK;
  }

private:
  std::shared_ptr<ServedObject> object_;
};

// Says whether the process is free when a call comes in.
class Gate : public ProcessObject<IMessageFilter> {
public:
  Gate() : ProcessObject(IID_IMessageFilter) {}

  void Close(std::chrono::milliseconds duration) {
    open_at_ = GetTickCount64() + static_cast<ULONGLONG>(duration.count());
  }

  // A plain refusal: callers ask again all the same, and Wine lets pass what is to be retried later.
  DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
    return GetTickCount64() < open_at_ ? SERVERCALL_REJECTED : SERVERCALL_ISHANDLED;
  }
  DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD, DWORD) override { return static_cast<DWORD>(-1); }
  DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }

private:
  ULONGLONG open_at_ = 0;
};

class WindowsAutomationServer : public AutomationServer {
public:
  WindowsAutomationServer() {
    Require(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), TextId::kEnteringAutomation);
    IMessageFilter* former = nullptr;
    CoRegisterMessageFilter(&gate_, &former);
    if (former != nullptr) former->Release();
  }
  // The process takes the rest with it. Leaving the system's automation would wait for calls that still come
  // in, and these wait for this thread.
  ~WindowsAutomationServer() override { CoRegisterMessageFilter(nullptr, nullptr); }

  void Serve(const ServedClass& served, std::shared_ptr<ServedObject> object,
             const std::function<void()>& ready) override {
    CLSID class_id{};
    Require(CLSIDFromString(WideText(served.classId).c_str(), &class_id), TextId::kClass);
    ObjectFactory factory(std::move(object));
    DWORD registration = 0;
    Require(CoRegisterClassObject(class_id, &factory, CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &registration),
            TextId::kOfferingClass);
    ready();
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    CoRevokeClassObject(registration);
  }

  void End() override { PostQuitMessage(0); }
  void RefuseCalls(std::chrono::milliseconds duration) override { gate_.Close(duration); }

private:
  Gate gate_;
};

}  // namespace

std::unique_ptr<AutomationServer> SystemAutomationServer() {
  return std::make_unique<WindowsAutomationServer>();
}

}  // namespace veritane::platform
