// Documents of the simulator.
#include "simulator/simulated_document.h"

#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "simulator/jcamp_value.h"
#include "simulator/jcamp_writer.h"
#include "simulator/print_object.h"
#include "simulator/print_template.h"
#include "simulator/simulated_collect_method.h"
#include "simulator/spc_writer.h"
#include "simulator/spectrum_file.h"
#include "simulator/transform.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veritane::simulator {

namespace {

using platform::ErrorNumber;
using platform::RunTimeError;

class UnaryOperation : public acquisition::Operation {
public:
  void SetOperation(std::int16_t operation) override { operation_ = operation; }
  void SetFileName(const std::string&) override {
    throw RunTimeError(ErrorNumber::kInvalidCall, "a unary operation has no file name");
  }
  std::int16_t Chosen() const { return operation_; }

private:
  std::int16_t operation_ = 0;
};

class ExportOperation : public acquisition::Operation {
public:
  void SetOperation(std::int16_t) override {
    throw RunTimeError(ErrorNumber::kInvalidCall, "an export has no operation to choose");
  }
  void SetFileName(const std::string& path) override { path_ = path; }
  const std::string& FileName() const { return path_; }

private:
  std::string path_;
};

std::size_t DigestOf(std::string_view bytes) {
  return std::hash<std::string_view>()(bytes);
}

const SimulatedCollectMethod& ToSimulated(const acquisition::CollectMethod& method) {
  const auto* const simulated = dynamic_cast<const SimulatedCollectMethod*>(&method);
  if (simulated == nullptr) {
    throw RunTimeError(ErrorNumber::kTypeMismatch, "the collect method belongs to another application");
  }
  return *simulated;
}

std::string NameInDocument(const std::string& path, std::size_t number) {
  return platform::LeafWithoutExtension(path) + " " + std::to_string(number);
}

}  // namespace

SimulatedDocument::SimulatedDocument(std::shared_ptr<DocumentSurroundings> around, std::string path)
    : around_(std::move(around)), path_(std::move(path)) {}

std::shared_ptr<SimulatedDocument> SimulatedDocument::New(std::shared_ptr<DocumentSurroundings> around,
                                                          std::string path) {
  auto document = std::make_shared<SimulatedDocument>(std::move(around), std::move(path));
  document->changed_ = true;
  return document;
}

std::shared_ptr<SimulatedDocument> SimulatedDocument::Open(std::shared_ptr<DocumentSurroundings> around,
                                                           std::string path) {
  const std::string bytes = around->files.ReadBytes(path);
  SpectrumFile file = ReadSpectrumFile(path, bytes);
  auto document = std::make_shared<SimulatedDocument>(std::move(around), std::move(path));
  for (StoredSpectrum& stored : file.spectra) {
    auto spectrum = std::make_shared<OpenSpectrum>();
    spectrum->stored = std::move(stored);
    document->spectra_.push_back(std::move(spectrum));
  }
  document->file_digest_ = DigestOf(bytes);
  document->left_out_ = std::move(file.leftOut);
  return document;
}

void SimulatedDocument::RequireOpen() const {
  if (!open_) throw RunTimeError(ErrorNumber::kInvalidCall, "the document is closed: " + path_);
}

std::shared_ptr<OpenSpectrum>& SimulatedDocument::Current() {
  if (spectra_.empty()) {
    throw RunTimeError(ErrorNumber::kSubscript, "the document holds no spectrum: " + path_);
  }
  return spectra_[current_];
}

std::int32_t SimulatedDocument::AutoAlign(acquisition::CollectMethod& method) {
  around_->calls->Note("AutoAlign");
  RequireOpen();
  return around_->device.Align(ToSimulated(method).ToRequest(around_->files));
}

std::int32_t SimulatedDocument::CollectInto(acquisition::CollectMethod& method) {
  around_->calls->Note("CollectInto");
  RequireOpen();
  Measurement measurement = around_->device.Collect(ToSimulated(method).ToRequest(around_->files));
  if (measurement.error == acquisition::kNoInstrumentError) {
    Append(std::move(measurement));
    return acquisition::kNoInstrumentError;
  }
  return measurement.error;
}

void SimulatedDocument::Append(Measurement&& measurement) {
  const std::vector<double>& values = measurement.values.values;
  if (values.empty() || !(measurement.spacing > 0) || !std::isfinite(measurement.spacing) ||
      !std::ranges::all_of(values, [](double y) { return std::isfinite(y); })) {
    throw RunTimeError(ErrorNumber::kDeviceError, "the instrument delivered a spectrum that is none");
  }
  auto spectrum = std::make_shared<OpenSpectrum>();
  StoredSpectrum& stored = spectrum->stored;
  stored.name =
      measurement.name.empty() ? NameInDocument(path_, spectra_.size() + 1) : std::move(measurement.name);
  stored.time = LongDate(around_->clock.LocalNow());
  stored.xUnits = std::move(measurement.xUnits);
  stored.yUnits = std::move(measurement.yUnits);
  stored.parameters = std::move(measurement.parameters);
  stored.spacing = measurement.spacing;
  stored.ordinates = std::move(measurement.values);
  spectra_.push_back(std::move(spectrum));
  current_ = spectra_.size() - 1;
  changed_ = true;
}

bool SimulatedDocument::IsModified() const {
  return changed_ || std::ranges::any_of(spectra_, [](const auto& spectrum) { return spectrum->modified; });
}

std::string SimulatedDocument::Serialized() const {
  std::vector<const StoredSpectrum*> stored;
  for (const auto& spectrum : spectra_) {
    stored.push_back(&spectrum->stored);
  }
  return WriteJcamp(stored);
}

void SimulatedDocument::RequireUnchangedFile() const {
  if (!left_out_.empty()) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "saving to " + path_ +
                                                      " would lose what could not be opened (" +
                                                      left_out_.front() + "); save under another name");
  }
  if (file_digest_ && around_->files.FileExists(path_) &&
      DigestOf(around_->files.ReadBytes(path_)) != *file_digest_) {
    throw RunTimeError(ErrorNumber::kFileAlreadyOpen,
                       path_ + " was changed since this document was opened; save under another name");
  }
}

void SimulatedDocument::Saved(std::string_view bytes) {
  file_digest_ = DigestOf(bytes);
  changed_ = false;
  left_out_.clear();
  for (const auto& spectrum : spectra_) {
    spectrum->modified = false;
  }
}

void SimulatedDocument::CloseDocument(bool save) {
  around_->calls->Note("CloseDocument", save);
  RequireOpen();
  if (save && IsModified()) {
    const std::string bytes = Serialized();
    RequireUnchangedFile();
    around_->files.WriteBytes(path_, bytes);
    Saved(bytes);
  }
  Detach();
}

void SimulatedDocument::CloseDocument() {
  around_->calls->Note("CloseDocument");
  RequireOpen();
  Detach();
}

void SimulatedDocument::Detach() {
  open_ = false;
  for (const auto& spectrum : spectra_) {
    spectrum->attached = false;
  }
}

void SimulatedDocument::SaveDocumentAs(const std::string& path) {
  around_->calls->Note("SaveDocumentAs", path);
  RequireOpen();
  const std::string bytes = Serialized();
  if (platform::UpperCase(path) == platform::UpperCase(path_)) RequireUnchangedFile();
  around_->files.WriteBytes(path, bytes);
  path_ = path;
  Saved(bytes);
}

std::shared_ptr<acquisition::Spectrum> SimulatedDocument::GetSpectrum() {
  around_->calls->Note("GetSpectrum");
  RequireOpen();
  return std::make_shared<SimulatedSpectrum>(Current(), around_->calls);
}

std::shared_ptr<acquisition::Spectrum> SimulatedDocument::GetSpectrumAt(std::int16_t index) {
  around_->calls->Note("GetSpectrumAt", index);
  RequireOpen();
  if (index < 1 || static_cast<std::size_t>(index) > spectra_.size()) {
    throw RunTimeError(ErrorNumber::kSubscript,
                       "there is no spectrum " + std::to_string(index) + " in " + path_);
  }
  return std::make_shared<SimulatedSpectrum>(spectra_[static_cast<std::size_t>(index) - 1], around_->calls);
}

std::int32_t SimulatedDocument::GetSpectrumCount() {
  around_->calls->Note("GetSpectrumCount");
  RequireOpen();
  return static_cast<std::int32_t>(spectra_.size());
}

void SimulatedDocument::SelectSpectrum(std::int16_t index) {
  around_->calls->Note("SelectSpectrum", index);
  RequireOpen();
  if (index < 1 || spectra_.empty()) {
    throw RunTimeError(ErrorNumber::kSubscript,
                       "there is no spectrum " + std::to_string(index) + " in " + path_);
  }
  current_ = std::min(static_cast<std::size_t>(index), spectra_.size()) - 1;
}

std::shared_ptr<acquisition::Operation> SimulatedDocument::CreateOperation(const std::string& kind) {
  around_->calls->Note("CreateOperation", kind);
  RequireOpen();
  if (kind == acquisition::kUnaryOperation) return std::make_shared<UnaryOperation>();
  if (kind == acquisition::kExportOperation) return std::make_shared<ExportOperation>();
  throw RunTimeError(ErrorNumber::kInvalidCall, "there is no operation of the kind \"" + kind + "\"");
}

void SimulatedDocument::ApplyOperation(acquisition::Operation& operation) {
  if (const auto* const unary = dynamic_cast<const UnaryOperation*>(&operation)) {
    around_->calls->Note("ApplyOperation", unary->Chosen());
    RequireOpen();
    Transform(unary->Chosen());
  } else if (const auto* const exporting = dynamic_cast<const ExportOperation*>(&operation)) {
    around_->calls->Note("ApplyOperation", exporting->FileName());
    RequireOpen();
    Export(exporting->FileName());
  } else {
    throw RunTimeError(ErrorNumber::kTypeMismatch, "the operation belongs to another application");
  }
}

void SimulatedDocument::Transform(std::int16_t operation) {
  if (operation != acquisition::kTransformOperation) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "there is no unary operation " + std::to_string(operation));
  }
  std::shared_ptr<OpenSpectrum>& current = Current();
  auto transformed = std::make_shared<OpenSpectrum>();
  transformed->stored = Transformed(current->stored);
  // Whoever holds the spectrum as it was goes on reading it.
  current->attached = false;
  current = std::move(transformed);
  changed_ = true;
}

void SimulatedDocument::Export(const std::string& path) {
  if (platform::UpperCase(path) == platform::UpperCase(path_)) {
    throw RunTimeError(ErrorNumber::kFileAlreadyOpen, "an export would replace the document itself: " + path);
  }
  around_->files.WriteBytes(path, WriteSpc(Current()->stored));
}

void SimulatedDocument::SetDocumentShown(std::int32_t flag) {
  around_->calls->Note("SetDocumentShown", flag);
  RequireOpen();
}

void SimulatedDocument::PrepareSampleView() {
  around_->calls->Note("PrepareSampleView");
  RequireOpen();
  around_->sampleInView = {Current(), path_};
  is_sample_ = true;
}

void SimulatedDocument::PrepareStandardView() {
  around_->calls->Note("PrepareStandardView");
  RequireOpen();
}

PrintSubject SimulatedDocument::Subject() {
  if (is_sample_) return {.sample = {Current(), path_}, .standard = {}, .printed = {}};
  return {.sample = around_->sampleInView, .standard = {Current(), path_}, .printed = {}};
}

std::shared_ptr<acquisition::PrintObject> SimulatedDocument::OpenPrintTemplate(const std::string& path) {
  around_->calls->Note("OpenPrintTemplate", path);
  RequireOpen();
  PrintTemplate print_template = ReadPrintTemplate(path, around_->files.ReadBytes(path));
  return std::make_shared<SimulatedPrint>(around_, std::move(print_template), Subject());
}

}  // namespace veritane::simulator
