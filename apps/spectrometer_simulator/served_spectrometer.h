// The simulated application as a process of its own shows it: quitting ends the process, and on demand it is
// busy for a while.
#pragma once

#include "acquisition/spectrometer_app.h"
#include "platform/automation_server.h"

#include <chrono>
#include <memory>
#include <string>

namespace veritane::spectrometer_simulator {

class ServedSpectrometer : public acquisition::SpectrometerApp {
public:
  // Once the first document has been opened, calls are refused for the time `busy`. The server outlives this.
  ServedSpectrometer(std::unique_ptr<acquisition::SpectrometerApp> app, platform::AutomationServer& server,
                     std::chrono::milliseconds busy);

  void SetWaiting(const acquisition::AutomationWaiting& waiting) override;
  void Interactive(bool interactive) override;
  std::shared_ptr<acquisition::Document> OpenDocument(const std::string& path) override;
  std::shared_ptr<acquisition::Document> NewDocument(const std::string& path) override;
  std::shared_ptr<acquisition::CollectMethod> LoadCollectMethod(const std::string& path) override;
  std::shared_ptr<acquisition::Document> ActiveDocument() override;
  void BeginPrint() override;
  void QuitApplication() override;

private:
  std::unique_ptr<acquisition::SpectrometerApp> app_;
  platform::AutomationServer& server_;
  std::chrono::milliseconds busy_;
};

}  // namespace veritane::spectrometer_simulator
