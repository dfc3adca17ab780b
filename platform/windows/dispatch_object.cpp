// Calls of members, and the automation of the system that makes the first object.
#include "platform/windows/dispatch_object.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"
#include "platform/windows/dispatch_error.h"
#include "platform/windows/system_text.h"

#include <utility>
#include <vector>

namespace veritane::platform {

namespace {

class ClientExchange : public ObjectExchange {
public:
  explicit ClientExchange(const std::shared_ptr<AutomationThread>& thread) : thread_(thread) {}

  IDispatch* Outgoing(const std::shared_ptr<AutomationObject>& object) override {
    const auto* const known = dynamic_cast<const DispatchObject*>(object.get());
    if (known == nullptr) {
      throw RunTimeError(ErrorNumber::kTypeMismatch, Text(TextId::kForeignObject));
    }
    known->Interface()->AddRef();
    return known->Interface();
  }
  std::shared_ptr<AutomationObject> Incoming(IDispatch* dispatch) override {
    return std::make_shared<DispatchObject>(dispatch, thread_);
  }

private:
  const std::shared_ptr<AutomationThread>& thread_;
};

// The arguments of a call in the system's order, last first.
class CallArguments {
public:
  CallArguments(std::span<const AutomationValue> values, MemberUse use, ObjectExchange& objects)
      : values_(values.size()), passed_(values.size()) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const std::size_t place = values.size() - 1 - i;
      VARIANT* const value = values_[place].Get();
      ToVariant(values[i], objects, value);
      passed_[place] = *value;
      if (use == MemberUse::kCallByReference) {
        V_VT(&passed_[place]) = static_cast<VARTYPE>(V_VT(value) | VT_BYREF);
        V_BYREF(&passed_[place]) = &V_BYREF(value);
      }
    }
    parameters_.rgvarg = passed_.data();
    parameters_.cArgs = static_cast<UINT>(passed_.size());
    if (use == MemberUse::kPut) {
      parameters_.rgdispidNamedArgs = &put_;
      parameters_.cNamedArgs = 1;
    }
  }

  DISPPARAMS* Get() { return &parameters_; }

private:
  std::vector<Variant> values_;  // own what is passed
  std::vector<VARIANT> passed_;
  DISPID put_ = DISPID_PROPERTYPUT;
  DISPPARAMS parameters_{};
};

WORD FlagsOf(MemberUse use) {
  switch (use) {
    case MemberUse::kPut:
      return DISPATCH_PROPERTYPUT;
    case MemberUse::kGet:
      return DISPATCH_PROPERTYGET | DISPATCH_METHOD;
    case MemberUse::kCall:
    case MemberUse::kCallByReference:
      return DISPATCH_METHOD;
  }
  return DISPATCH_METHOD;
}

}  // namespace

DispatchObject::DispatchObject(IDispatch* dispatch, std::shared_ptr<AutomationThread> thread)
    : dispatch_(dispatch), thread_(std::move(thread)) {
  dispatch_->AddRef();
}

DispatchObject::~DispatchObject() {
  dispatch_->Release();
}

DISPID DispatchObject::IdOf(const std::string& member) {
  const auto known = ids_.find(member);
  if (known != ids_.end()) return known->second;
  std::wstring name = WideText(member);
  LPOLESTR names = name.data();
  DISPID id = DISPID_UNKNOWN;
  const HRESULT result =
      thread_->Carry([&] { return dispatch_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id); });
  if (FAILED(result)) throw ErrorOfCall(result, member);
  ids_[member] = id;
  return id;
}

AutomationValue DispatchObject::Use(MemberUse use, std::string_view member,
                                    std::span<const AutomationValue> arguments) {
  const std::string name(member);
  const DISPID id = IdOf(name);
  ClientExchange objects(thread_);
  CallArguments passed(arguments, use, objects);
  Variant answer;
  EXCEPINFO reported{};
  const HRESULT result = thread_->Carry([&] {
    return dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, FlagsOf(use), passed.Get(),
                             use == MemberUse::kPut ? nullptr : answer.Get(), &reported, nullptr);
  });
  if (result == DISP_E_EXCEPTION) throw ReportedError(reported, name);
  if (FAILED(result)) throw ErrorOfCall(result, name);
  return FromVariant(*answer, objects);
}

namespace {

class WindowsAutomation : public Automation {
public:
  explicit WindowsAutomation(ShowWaiting show)
      : thread_(std::make_shared<AutomationThread>(std::move(show))) {}

  std::shared_ptr<AutomationObject> Create(const std::string& prog_id) override {
    CLSID class_id{};
    void* created = nullptr;
    HRESULT result = CLSIDFromProgID(WideText(prog_id).c_str(), &class_id);
    if (SUCCEEDED(result)) {
      result = thread_->Carry(
          [&] { return CoCreateInstance(class_id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch, &created); });
    }
    if (FAILED(result)) {
      throw RunTimeError(ErrorNumber::kCannotCreateObject, prog_id + ": " + SystemText(result));
    }
    auto* const dispatch = static_cast<IDispatch*>(created);
    auto object = std::make_shared<DispatchObject>(dispatch, thread_);
    dispatch->Release();
    return object;
  }

  void SetWaiting(const AutomationWaiting& waiting) override { thread_->SetWaiting(waiting); }

private:
  std::shared_ptr<AutomationThread> thread_;
};

}  // namespace

std::unique_ptr<Automation> SystemAutomation(const ShowWaiting& show) {
  return std::make_unique<WindowsAutomation>(show);
}

bool SystemHasAutomation() {
  return true;
}

}  // namespace veritane::platform
