// Values of automation in the types that the program asks for.
#include "platform/automation.h"

#include "platform/run_time_error.h"
#include "platform/texts.h"

namespace veritane::platform {

namespace {

template <typename... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

[[noreturn]] void ThrowMismatch(TextId what) {
  throw RunTimeError(ErrorNumber::kTypeMismatch, Text(what));
}

}  // namespace

std::string TextOf(const AutomationValue& value) {
  if (std::holds_alternative<std::monostate>(value)) return "";
  if (const auto* const text = std::get_if<std::string>(&value)) return *text;
  ThrowMismatch(TextId::kNoAutomationText);
}

double NumberOf(const AutomationValue& value) {
  return std::visit(
      Overloaded{[](std::monostate) { return 0.0; }, [](bool truth) { return truth ? -1.0 : 0.0; },
                 [](std::int16_t number) { return static_cast<double>(number); },
                 [](std::int32_t number) { return static_cast<double>(number); },
                 [](double number) { return number; },
                 [](const auto&) -> double { ThrowMismatch(TextId::kNoAutomationNumber); }},
      value);
}

bool BooleanOf(const AutomationValue& value) {
  return NumberOf(value) != 0;
}

std::int16_t Int16Of(const AutomationValue& value) {
  return ToInt16(NumberOf(value));
}

std::int32_t Int32Of(const AutomationValue& value) {
  return ToInt32(NumberOf(value));
}

AutomationArray ArrayOf(const AutomationValue& value) {
  if (const auto* const array = std::get_if<AutomationArray>(&value)) return *array;
  ThrowMismatch(TextId::kNoAutomationArray);
}

std::shared_ptr<AutomationObject> ObjectOf(const AutomationValue& value) {
  const auto* const object = std::get_if<std::shared_ptr<AutomationObject>>(&value);
  if (object == nullptr || *object == nullptr)
    throw RunTimeError(kObjectRequired, Text(TextId::kObjectExpected));
  return *object;
}

}  // namespace veritane::platform
