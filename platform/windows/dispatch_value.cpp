// Converting between values of automation and variants.
#include "platform/windows/dispatch_value.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"

#include <algorithm>
#include <utility>

namespace veritane::platform {

namespace {

[[noreturn]] void ThrowOutOfMemory() {
  throw RunTimeError(ErrorNumber::kOutOfMemory);
}

SAFEARRAY* MakeArray(const AutomationArray& array) {
  SAFEARRAYBOUND bound{static_cast<ULONG>(array.values.size()), array.lower};
  SAFEARRAY* const made = SafeArrayCreate(VT_R8, 1, &bound);
  void* place = nullptr;
  if (made == nullptr || FAILED(SafeArrayAccessData(made, &place))) ThrowOutOfMemory();
  std::ranges::copy(array.values, static_cast<double*>(place));
  SafeArrayUnaccessData(made);
  return made;
}

template <typename Number>
void CopyNumbers(const void* data, std::vector<double>& values) {
  const auto* const numbers = static_cast<const Number*>(data);
  for (std::size_t i = 0; i < values.size(); ++i) values[i] = static_cast<double>(numbers[i]);
}

void CopyVariants(const void* data, ObjectExchange& objects, std::vector<double>& values) {
  const auto* const variants = static_cast<const VARIANT*>(data);
  for (std::size_t i = 0; i < values.size(); ++i) values[i] = NumberOf(FromVariant(variants[i], objects));
}

// The array's memory while it is read.
class OpenedArray {
public:
  explicit OpenedArray(SAFEARRAY* array) : array_(array) {
    if (FAILED(SafeArrayAccessData(array_, &data_))) ThrowOutOfMemory();
  }
  ~OpenedArray() { SafeArrayUnaccessData(array_); }
  OpenedArray(const OpenedArray&) = delete;
  OpenedArray& operator=(const OpenedArray&) = delete;

  const void* Data() const { return data_; }

private:
  SAFEARRAY* array_;
  void* data_ = nullptr;
};

AutomationArray FromArray(SAFEARRAY* array, VARTYPE type, ObjectExchange& objects) {
  LONG lower = 0;
  LONG upper = -1;
  if (array == nullptr || SafeArrayGetDim(array) != 1 || FAILED(SafeArrayGetLBound(array, 1, &lower)) ||
      FAILED(SafeArrayGetUBound(array, 1, &upper))) {
    throw RunTimeError(ErrorNumber::kTypeMismatch, Text(TextId::kArrayOfDimensions));
  }
  const long long count = static_cast<long long>(upper) - lower + 1;
  AutomationArray result{lower, std::vector<double>(static_cast<std::size_t>(std::max(count, 0LL)))};
  const OpenedArray opened(array);
  switch (type) {
    case VT_R8:
      CopyNumbers<double>(opened.Data(), result.values);
      break;
    case VT_R4:
      CopyNumbers<float>(opened.Data(), result.values);
      break;
    case VT_I2:
      CopyNumbers<std::int16_t>(opened.Data(), result.values);
      break;
    case VT_I4:
      CopyNumbers<std::int32_t>(opened.Data(), result.values);
      break;
    case VT_VARIANT:
      CopyVariants(opened.Data(), objects, result.values);
      break;
    default:
      throw RunTimeError(ErrorNumber::kTypeMismatch, Text(TextId::kArrayWithoutNumbers));
  }
  return result;
}

AutomationValue FromUnknown(IUnknown* unknown, ObjectExchange& objects) {
  if (unknown == nullptr) return std::shared_ptr<AutomationObject>();
  void* dispatch = nullptr;
  if (FAILED(unknown->QueryInterface(IID_IDispatch, &dispatch))) {
    throw RunTimeError(ErrorNumber::kTypeMismatch, Text(TextId::kNoAutomationInterface));
  }
  auto* const found = static_cast<IDispatch*>(dispatch);
  std::shared_ptr<AutomationObject> object = objects.Incoming(found);
  found->Release();
  return object;
}

// A variant of a type that the program has no use for, as the text that the system makes of it.
AutomationValue AsText(const VARIANT& variant) {
  Variant text;
  VARIANT source = variant;  // the system asks for one that it might change, and does not
  if (FAILED(VariantChangeType(text.Get(), &source, 0, VT_BSTR))) {
    throw RunTimeError(ErrorNumber::kTypeMismatch,
                       Text(TextId::kUselessAutomationValue, {std::to_string(V_VT(&variant))}));
  }
  return Utf8Text({V_BSTR(text.Get()), SysStringLen(V_BSTR(text.Get()))});
}

AutomationValue FromPlain(const VARIANT& variant, ObjectExchange& objects) {
  switch (V_VT(&variant)) {
    case VT_EMPTY:
    case VT_NULL:
    case VT_ERROR:
      return {};
    case VT_BOOL:
      return V_BOOL(&variant) != VARIANT_FALSE;
    case VT_I2:
      return std::int16_t{V_I2(&variant)};
    case VT_I1:
      return std::int32_t{V_I1(&variant)};
    case VT_UI1:
      return std::int32_t{V_UI1(&variant)};
    case VT_UI2:
      return std::int32_t{V_UI2(&variant)};
    case VT_I4:
    case VT_INT:
      return static_cast<std::int32_t>(V_I4(&variant));
    case VT_UI4:
    case VT_UINT:
      return static_cast<double>(V_UI4(&variant));
    case VT_I8:
      return static_cast<double>(V_I8(&variant));
    case VT_UI8:
      return static_cast<double>(V_UI8(&variant));
    case VT_R4:
      return static_cast<double>(V_R4(&variant));
    case VT_R8:
      return V_R8(&variant);
    case VT_BSTR:
      return Utf8Text({V_BSTR(&variant), SysStringLen(V_BSTR(&variant))});
    case VT_DISPATCH:
      return FromUnknown(V_DISPATCH(&variant), objects);
    case VT_UNKNOWN:
      return FromUnknown(V_UNKNOWN(&variant), objects);
    default:
      return AsText(variant);
  }
}

// Sets a variant to what a value holds.
struct VariantSetter {
  ObjectExchange& objects;
  VARIANT* variant;

  void operator()(std::monostate) const {}
  void operator()(bool truth) const {
    V_VT(variant) = VT_BOOL;
    V_BOOL(variant) = truth ? VARIANT_TRUE : VARIANT_FALSE;
  }
  void operator()(std::int16_t number) const {
    V_VT(variant) = VT_I2;
    V_I2(variant) = number;
  }
  void operator()(std::int32_t number) const {
    V_VT(variant) = VT_I4;
    V_I4(variant) = number;
  }
  void operator()(double number) const {
    V_VT(variant) = VT_R8;
    V_R8(variant) = number;
  }
  void operator()(const std::string& text) const {
    AutomationText made(text);
    V_BSTR(variant) = made.Release();
    V_VT(variant) = VT_BSTR;
  }
  void operator()(const AutomationArray& array) const {
    V_ARRAY(variant) = MakeArray(array);
    V_VT(variant) = VT_ARRAY | VT_R8;
  }
  void operator()(const std::shared_ptr<AutomationObject>& object) const {
    V_DISPATCH(variant) = object == nullptr ? nullptr : objects.Outgoing(object);
    V_VT(variant) = VT_DISPATCH;
  }
};

}  // namespace

AutomationText::AutomationText(std::string_view utf8) {
  const std::wstring wide = WideText(utf8);
  text_ = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (text_ == nullptr) ThrowOutOfMemory();
}

BSTR AutomationText::Release() {
  return std::exchange(text_, nullptr);
}

void ToVariant(const AutomationValue& value, ObjectExchange& objects, VARIANT* variant) {
  std::visit(VariantSetter{objects, variant}, value);
}

AutomationValue FromVariant(const VARIANT& variant, ObjectExchange& objects) {
  Variant plain;
  VARIANT source = variant;
  // Also follows what is passed by reference.
  if (FAILED(VariantCopyInd(plain.Get(), &source))) ThrowOutOfMemory();
  if ((V_VT(plain.Get()) & VT_ARRAY) != 0) {
    return FromArray(V_ARRAY(plain.Get()), static_cast<VARTYPE>(V_VT(plain.Get()) & VT_TYPEMASK), objects);
  }
  return FromPlain(*plain, objects);
}

}  // namespace veritane::platform
