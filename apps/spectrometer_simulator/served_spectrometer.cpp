// The simulated application as a process.
#include "apps/spectrometer_simulator/served_spectrometer.h"

#include <utility>

namespace veritane::spectrometer_simulator {

ServedSpectrometer::ServedSpectrometer(std::unique_ptr<acquisition::SpectrometerApp> app,
                                       platform::AutomationServer& server, std::chrono::milliseconds busy)
    : app_(std::move(app)), server_(server), busy_(busy) {}

void ServedSpectrometer::SetWaiting(const acquisition::AutomationWaiting& waiting) {
  app_->SetWaiting(waiting);
}

void ServedSpectrometer::Interactive(bool interactive) {
  app_->Interactive(interactive);
}

std::shared_ptr<acquisition::Document> ServedSpectrometer::OpenDocument(const std::string& path) {
  auto document = app_->OpenDocument(path);
  server_.RefuseCalls(std::exchange(busy_, {}));
  return document;
}

std::shared_ptr<acquisition::Document> ServedSpectrometer::NewDocument(const std::string& path) {
  return app_->NewDocument(path);
}

std::shared_ptr<acquisition::CollectMethod> ServedSpectrometer::LoadCollectMethod(const std::string& path) {
  return app_->LoadCollectMethod(path);
}

std::shared_ptr<acquisition::Document> ServedSpectrometer::ActiveDocument() {
  return app_->ActiveDocument();
}

void ServedSpectrometer::BeginPrint() {
  app_->BeginPrint();
}

void ServedSpectrometer::QuitApplication() {
  app_->QuitApplication();
  server_.End();
}

}  // namespace veritane::spectrometer_simulator
