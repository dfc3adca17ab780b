// One object of the Spectrometer application with the names of its members: what the objects of the
// automation client are made of.
#pragma once

#include "acquisition/automation_members.h"

#include <initializer_list>
#include <memory>
#include <utility>

namespace veritane::acquisition {

class ServerObject {
public:
  ServerObject(std::shared_ptr<platform::AutomationObject> object,
               std::shared_ptr<const AutomationMembers> members)
      : object_(std::move(object)), members_(std::move(members)) {}

  // Uses a member in the way that the table says. Errors as AutomationObject::Use.
  platform::AutomationValue Use(Member member,
                                std::initializer_list<platform::AutomationValue> arguments = {}) const {
    const ServerMember& named = (*members_)[member];
    return object_->Use(named.use, named.name, {arguments.begin(), arguments.size()});
  }
  // The same for a member that gives an object.
  ServerObject UseForObject(Member member,
                            std::initializer_list<platform::AutomationValue> arguments = {}) const {
    return {platform::ObjectOf(Use(member, arguments)), members_};
  }

  // The object as an argument for another.
  platform::AutomationValue AsArgument() const { return object_; }

private:
  std::shared_ptr<platform::AutomationObject> object_;
  std::shared_ptr<const AutomationMembers> members_;
};

}  // namespace veritane::acquisition
