// Answering calls of other programs.
#include "platform/windows/dispatch_server.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "platform/windows/dispatch_error.h"
#include "platform/windows/dispatch_value.h"
#include "platform/windows/system_text.h"
#include "platform/windows_path.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace veritane::platform {

namespace {

// By this interface an object of this program is known again when it comes back as an argument.
constexpr IID kServedObjectInterface = {
    0x93e997db, 0xf607, 0x4b16, {0x91, 0xdc, 0x30, 0x24, 0x9f, 0x91, 0xd8, 0x16}};

class DispatchServer : public IDispatch {
public:
  explicit DispatchServer(std::shared_ptr<ServedObject> object) : object_(std::move(object)) {
    CoAddRefServerProcess();
  }
  virtual ~DispatchServer() {
    if (CoReleaseServerProcess() == 0) PostQuitMessage(0);
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interface_id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* report, UINT*) override;

  const std::shared_ptr<ServedObject>& Object() const { return object_; }

private:
  AutomationValue Answer(DISPID id, WORD flags, const DISPPARAMS& parameters);

  ULONG references_ = 1;
  std::shared_ptr<ServedObject> object_;
};

class ServerExchange : public ObjectExchange {
public:
  IDispatch* Outgoing(const std::shared_ptr<AutomationObject>& object) override {
    auto served = std::dynamic_pointer_cast<ServedObject>(object);
    if (served == nullptr) throw RunTimeError(ErrorNumber::kTypeMismatch, Text(TextId::kObjectCannotBeShown));
    return ServeObject(std::move(served));
  }
  std::shared_ptr<AutomationObject> Incoming(IDispatch* dispatch) override {
    void* own = nullptr;
    if (FAILED(dispatch->QueryInterface(kServedObjectInterface, &own))) {
      throw RunTimeError(ErrorNumber::kTypeMismatch, Text(TextId::kForeignObject));
    }
    auto* const server = static_cast<DispatchServer*>(own);
    std::shared_ptr<AutomationObject> object = server->Object();
    server->Release();
    return object;
  }
};

HRESULT DispatchServer::QueryInterface(REFIID interface_id, void** object) {
  if (IsEqualIID(interface_id, IID_IUnknown) || IsEqualIID(interface_id, IID_IDispatch)) {
    *object = static_cast<IDispatch*>(this);
  } else if (IsEqualIID(interface_id, kServedObjectInterface)) {
    *object = this;
  } else {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

// A member's number is its place in the list of members, from 1. Names of arguments are not known.
HRESULT DispatchServer::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  std::fill_n(ids, count, DISPID_UNKNOWN);
  if (count == 0) return S_OK;
  const std::string name = UpperCase(Utf8Text(names[0]));
  const std::vector<std::string>& members = object_->Members();
  const auto found = std::ranges::find(members, name, UpperCase);
  if (found == members.end()) return DISP_E_UNKNOWNNAME;
  ids[0] = static_cast<DISPID>(found - members.begin()) + 1;
  return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

AutomationValue DispatchServer::Answer(DISPID id, WORD flags, const DISPPARAMS& parameters) {
  ServerExchange objects;
  std::vector<AutomationValue> arguments;
  for (UINT i = parameters.cArgs; i-- > 0;) {
    arguments.push_back(FromVariant(parameters.rgvarg[i], objects));
  }
  MemberUse use = MemberUse::kCall;
  if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
    use = MemberUse::kPut;
  } else if ((flags & DISPATCH_PROPERTYGET) != 0) {
    use = MemberUse::kGet;
  }
  return object_->Use(use, object_->Members()[static_cast<std::size_t>(id) - 1], arguments);
}

void Report(const RunTimeError& error, EXCEPINFO* report) {
  if (report == nullptr) return;
  *report = {};
  report->scode = ResultOf(error);
  report->bstrDescription = AutomationText(error.what()).Release();
}

HRESULT DispatchServer::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                               EXCEPINFO* report, UINT*) {
  if (id < 1 || static_cast<std::size_t>(id) > object_->Members().size()) return DISP_E_MEMBERNOTFOUND;
  try {
    const AutomationValue answer = Answer(id, flags, *parameters);
    ServerExchange objects;
    if (result != nullptr) ToVariant(answer, objects, result);
    return S_OK;
  } catch (const RunTimeError& error) {
    Report(error, report);
  } catch (const std::exception& error) {
    Report(RunTimeError(kAutomationError, error.what()), report);
  }
  return DISP_E_EXCEPTION;
}

}  // namespace

IDispatch* ServeObject(std::shared_ptr<ServedObject> object) {
  return new DispatchServer(std::move(object));
}

}  // namespace veritane::platform
