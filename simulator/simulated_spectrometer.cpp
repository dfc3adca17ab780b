// The substitute Spectrometer application.
#include "simulator/simulated_spectrometer.h"

#include "platform/run_time_error.h"
#include "simulator/simulated_collect_method.h"

#include <utility>

namespace veritane::simulator {

SimulatedSpectrometer::SimulatedSpectrometer(platform::FileSystem& files, platform::Clock& clock,
                                             MeasuringDevice& device, std::shared_ptr<CallLog> calls)
    : around_(std::make_shared<DocumentSurroundings>(
          DocumentSurroundings{files, clock, device, std::move(calls), {}})) {}

void SimulatedSpectrometer::RequireRunning() const {
  if (!running_) {
    throw platform::RunTimeError(kServerGone, "The Spectrometer application has been closed");
  }
}

void SimulatedSpectrometer::SetWaiting(const acquisition::AutomationWaiting&) {
  RequireRunning();
}

void SimulatedSpectrometer::Interactive(bool interactive) {
  around_->calls->Note("Interactive", interactive);
  RequireRunning();
}

void SimulatedSpectrometer::Remember(const std::shared_ptr<SimulatedDocument>& document) {
  std::erase_if(documents_, [](const auto& known) { return !known->IsOpen(); });
  documents_.push_back(document);
}

std::shared_ptr<acquisition::Document> SimulatedSpectrometer::OpenDocument(const std::string& path) {
  around_->calls->Note("OpenDocument", path);
  RequireRunning();
  auto document = SimulatedDocument::Open(around_, path);
  Remember(document);
  return document;
}

std::shared_ptr<acquisition::Document> SimulatedSpectrometer::NewDocument(const std::string& path) {
  around_->calls->Note("NewDocument", path);
  RequireRunning();
  auto document = SimulatedDocument::New(around_, path);
  Remember(document);
  return document;
}

std::shared_ptr<acquisition::CollectMethod> SimulatedSpectrometer::LoadCollectMethod(
    const std::string& path) {
  around_->calls->Note("LoadCollectMethod", path);
  RequireRunning();
  return std::make_shared<SimulatedCollectMethod>(path, around_->files.ReadBytes(path), around_->calls);
}

std::shared_ptr<acquisition::Document> SimulatedSpectrometer::ActiveDocument() {
  around_->calls->Note("ActiveDocument");
  RequireRunning();
  std::erase_if(documents_, [](const auto& document) { return !document->IsOpen(); });
  if (documents_.empty()) {
    throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall, "no document is open");
  }
  return documents_.back();
}

void SimulatedSpectrometer::BeginPrint() {
  around_->calls->Note("BeginPrint");
  RequireRunning();
  around_->printBegun = true;
}

void SimulatedSpectrometer::QuitApplication() {
  around_->calls->Note("QuitApplication");
  RequireRunning();
  for (const auto& document : documents_) {
    document->Detach();
  }
  documents_.clear();
  running_ = false;
}

void SimulatedSpectrometer::PrintInto(PrintSettings settings) {
  around_->printing = std::move(settings);
}

}  // namespace veritane::simulator
