// An object of the simulator as other programs see it: members by name that act on an object of the contract.
#pragma once

#include "acquisition/automation_members.h"
#include "platform/automation.h"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace veritane::simulator {

using Arguments = std::span<const platform::AutomationValue>;

class SimulatorObject : public platform::ServedObject {
public:
  explicit SimulatorObject(std::shared_ptr<const acquisition::AutomationMembers> members)
      : members_(std::move(members)) {}

  // `action` takes the arguments, exactly `arguments` of them, and gives the member's value or nothing.
  template <typename Action>
  void Serve(acquisition::Member member, std::size_t arguments, Action action) {
    Add(member, arguments, [action = std::move(action)](Arguments given) -> platform::AutomationValue {
      if constexpr (std::is_void_v<std::invoke_result_t<const Action&, Arguments>>) {
        action(given);
        return {};
      } else {
        return action(given);
      }
    });
  }

  // Errors 438 for a member that is not there or is not used so, 450 for a wrong number of arguments.
  platform::AutomationValue Use(platform::MemberUse use, std::string_view member,
                                std::span<const platform::AutomationValue> arguments) override;
  const std::vector<std::string>& Members() const override { return names_; }

private:
  struct Served {
    std::string name;  // in upper case
    bool put;
    std::size_t arguments;
    std::function<platform::AutomationValue(Arguments)> action;
  };

  void Add(acquisition::Member member, std::size_t arguments,
           std::function<platform::AutomationValue(Arguments)> action);

  std::shared_ptr<const acquisition::AutomationMembers> members_;
  std::vector<Served> served_;
  std::vector<std::string> names_;
};

// The same with the object of the contract that it stands for, so that it can come back as an argument.
template <typename Contract>
class ObjectFor : public SimulatorObject {
public:
  ObjectFor(std::shared_ptr<const acquisition::AutomationMembers> members, std::shared_ptr<Contract> target)
      : SimulatorObject(std::move(members)), target_(std::move(target)) {}

  Contract& Target() const { return *target_; }

private:
  std::shared_ptr<Contract> target_;
};

}  // namespace veritane::simulator
