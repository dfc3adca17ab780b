// A Spectrometer application reached through automation inside one process, so that client and server are
// tested by the tests of the contract. CTest runs those tests a second time with the environment variable
// set.
#pragma once

#include "acquisition/automation_client.h"
#include "simulator/automation_server.h"

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace veritane::tests {

// Automation that knows one object.
class InMemoryAutomation : public platform::Automation {
public:
  explicit InMemoryAutomation(std::shared_ptr<platform::AutomationObject> object)
      : object_(std::move(object)) {}

  std::shared_ptr<platform::AutomationObject> Create(const std::string&) override { return object_; }
  void SetWaiting(const platform::AutomationWaiting& given) override { waiting = given; }

  platform::AutomationWaiting waiting;

private:
  std::shared_ptr<platform::AutomationObject> object_;
};

inline constexpr const char* kProgId = acquisition::kSpectrometerProgId;

// The application behind its automation objects; it keeps alive what it needs.
class AutomationConnection {
public:
  explicit AutomationConnection(std::shared_ptr<acquisition::SpectrometerApp> app)
      : automation_(simulator::ServeSpectrometerApp(std::move(app))),
        client_(acquisition::ConnectSpectrometerApp(automation_, kProgId, {})) {}

  acquisition::SpectrometerApp& Client() { return *client_; }

private:
  InMemoryAutomation automation_;
  std::unique_ptr<acquisition::SpectrometerApp> client_;
};

// Whether the tests of the contract are to go through automation.
inline bool TestsGoThroughAutomation() {
  return std::getenv("VERITANE_TESTS_THROUGH_AUTOMATION") != nullptr;
}

// The application itself, or the same through automation, as the environment asks for.
class ConnectionUnderTest {
public:
  explicit ConnectionUnderTest(acquisition::SpectrometerApp& app) : app_(app) {
    // The application belongs to the test, which outlives this.
    if (TestsGoThroughAutomation())
      connection_.emplace(std::shared_ptr<acquisition::SpectrometerApp>(std::shared_ptr<void>(), &app));
  }

  acquisition::SpectrometerApp& App() { return connection_ ? connection_->Client() : app_; }

private:
  acquisition::SpectrometerApp& app_;
  std::optional<AutomationConnection> connection_;
};

}  // namespace veritane::tests
