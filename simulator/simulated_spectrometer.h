// The substitute Spectrometer application in process: documents on files, measurements by a device that is
// handed in.
#pragma once

#include "acquisition/spectrometer_app.h"
#include "platform/automation.h"
#include "simulator/call_log.h"
#include "simulator/measuring.h"
#include "simulator/print_settings.h"
#include "simulator/simulated_document.h"

#include <memory>
#include <string>
#include <vector>

namespace veritane::simulator {

// The error of every call after QuitApplication.
using platform::kServerGone;

class SimulatedSpectrometer : public acquisition::SpectrometerApp {
public:
  // All references outlive the application and its documents. `calls` may be shared with whoever reads it.
  SimulatedSpectrometer(platform::FileSystem& files, platform::Clock& clock, MeasuringDevice& device,
                        std::shared_ptr<CallLog> calls = std::make_shared<CallLog>());

  // How the client waits; nothing in process ever waits for a busy server. Not an operation of the log.
  void SetWaiting(const acquisition::AutomationWaiting& waiting) override;
  void Interactive(bool interactive) override;
  std::shared_ptr<acquisition::Document> OpenDocument(const std::string& path) override;
  std::shared_ptr<acquisition::Document> NewDocument(const std::string& path) override;
  std::shared_ptr<acquisition::CollectMethod> LoadCollectMethod(const std::string& path) override;
  // The document opened or created last that is still open; error 5 when there is none.
  std::shared_ptr<acquisition::Document> ActiveDocument() override;
  void BeginPrint() override;
  // Closes what is open without saving.
  void QuitApplication() override;

  // Where prints go and who is told; without it PrintDoc is error 57.
  void PrintInto(PrintSettings settings);
  // The operations called since the last taking, e.g. "OpenDocument(C:\…)".
  std::vector<std::string> TakeCalls() { return around_->calls->Take(); }

private:
  void RequireRunning() const;
  void Remember(const std::shared_ptr<SimulatedDocument>& document);

  std::shared_ptr<DocumentSurroundings> around_;
  std::vector<std::shared_ptr<SimulatedDocument>> documents_;
  bool running_ = true;
};

}  // namespace veritane::simulator
