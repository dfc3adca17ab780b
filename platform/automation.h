// Objects of other programs, driven while the program runs by the names of their members. The interfaces know
// nothing of the system that carries the calls.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veritane::platform {

class AutomationObject;

// Doubles with a lower bound of their own.
struct AutomationArray {
  std::int32_t lower = 0;
  std::vector<double> values;

  bool operator==(const AutomationArray&) const = default;
};

// What goes to and comes from a member. An object may be null.
using AutomationValue = std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, std::string,
                                     AutomationArray, std::shared_ptr<AutomationObject>>;

// The value in the type asked for, converted where nothing is lost by it: numbers into each other (rounded
// half to even, true is -1), an empty value into "" or 0. Error 13 for anything else, 6 for a number that
// does not fit.
std::string TextOf(const AutomationValue& value);
bool BooleanOf(const AutomationValue& value);
std::int16_t Int16Of(const AutomationValue& value);
std::int32_t Int32Of(const AutomationValue& value);
double NumberOf(const AutomationValue& value);
AutomationArray ArrayOf(const AutomationValue& value);
// Error 424 for anything but an object, and for null.
std::shared_ptr<AutomationObject> ObjectOf(const AutomationValue& value);

// How a member is used.
enum class MemberUse { kCall, kCallByReference, kGet, kPut };

// Numbers of errors that automation adds to those of the program.
inline constexpr int kObjectRequired = 424;
inline constexpr int kNoSuchMember = 438;
inline constexpr int kAutomationError = 440;
inline constexpr int kWrongArgumentCount = 450;
inline constexpr int kServerGone = 462;

class AutomationObject {
public:
  virtual ~AutomationObject() = default;

  // Calls the method, or reads or sets the property, of this name (case does not matter). What the object
  // reports comes as RunTimeError with its own number and text; beside that the numbers above, and 13 for an
  // argument of the wrong type.
  virtual AutomationValue Use(MemberUse use, std::string_view member,
                              std::span<const AutomationValue> arguments) = 0;
};

// An object that this program shows to others.
class ServedObject : public AutomationObject {
public:
  // The names of all members, each once. The list never changes.
  virtual const std::vector<std::string>& Members() const = 0;
};

// How the program waits for a server.
struct AutomationWaiting {
  // A server that stays busy for busyMilliseconds raises an error; else it is asked for ever.
  bool busyServerRaisesError = true;
  // Shown while the program waits for a busy server, and when the user presses a key while it waits for an
  // answer.
  std::string pendingText;
  // How long an answer may take.
  std::int32_t pendingMilliseconds = 999'999'999;
  std::int32_t busyMilliseconds = 10'000;
};

// The system's automation.
class Automation {
public:
  virtual ~Automation() = default;

  // Starts or finds the program that serves objects of this name and lets it make one. Error 429 with the
  // name and the reason when that fails.
  virtual std::shared_ptr<AutomationObject> Create(const std::string& prog_id) = 0;
  // How every call from now on waits.
  virtual void SetWaiting(const AutomationWaiting& waiting) = 0;
};

// Receives the text to show while the program waits for a server, and "" when it does no more.
using ShowWaiting = std::function<void(const std::string& text)>;

// The automation of the system that the program runs on; objects and `show` are used on the calling thread
// alone. On a system without automation every creation fails.
std::unique_ptr<Automation> SystemAutomation(const ShowWaiting& show);
bool SystemHasAutomation();

}  // namespace veritane::platform
