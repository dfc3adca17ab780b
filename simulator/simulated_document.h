// A document of the simulator: the spectra of one file, opened, measured into, changed and saved.
#pragma once

#include "acquisition/spectrometer_app.h"
#include "platform/date_time.h"
#include "platform/file_system.h"
#include "simulator/call_log.h"
#include "simulator/measuring.h"
#include "simulator/print_fields.h"
#include "simulator/print_settings.h"
#include "simulator/simulated_spectrum.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace veritane::simulator {

// What documents need of the application that they belong to.
struct DocumentSurroundings {
  platform::FileSystem& files;
  platform::Clock& clock;
  MeasuringDevice& device;
  std::shared_ptr<CallLog> calls;
  PrintSettings printing;
  // The sample that the program brought into view last, until it is printed; closing its document leaves it.
  PrintedSpectrum sampleInView = {};
  bool printBegun = false;
};

class SimulatedDocument : public acquisition::Document {
public:
  // An empty document, written to `path` when it is closed with saving, over whatever is there then.
  static std::shared_ptr<SimulatedDocument> New(std::shared_ptr<DocumentSurroundings> around,
                                                std::string path);
  // The spectra of a file. Errors of the file system, and kInvalidFileFormat.
  static std::shared_ptr<SimulatedDocument> Open(std::shared_ptr<DocumentSurroundings> around,
                                                 std::string path);

  SimulatedDocument(std::shared_ptr<DocumentSurroundings> around, std::string path);

  std::int32_t AutoAlign(acquisition::CollectMethod& method) override;
  std::int32_t CollectInto(acquisition::CollectMethod& method) override;
  // A document without changes writes nothing. RunTimeError 5 for a document without spectra (so that an
  // empty one never replaces a file) and for one from which spectra of its file were left out; 55 when the
  // file was changed since the document was opened. The document then stays open as it was.
  void CloseDocument(bool save) override;
  // Discards changes.
  void CloseDocument() override;
  std::shared_ptr<acquisition::Spectrum> GetSpectrum() override;
  std::shared_ptr<acquisition::Spectrum> GetSpectrumAt(std::int16_t index) override;
  std::int32_t GetSpectrumCount() override;
  void SelectSpectrum(std::int16_t index) override;
  std::shared_ptr<acquisition::Operation> CreateOperation(const std::string& kind) override;
  void ApplyOperation(acquisition::Operation& operation) override;
  void SaveDocumentAs(const std::string& path) override;
  // There is no window here that shows a document.
  void SetDocumentShown(std::int32_t flag) override;
  // The current spectrum becomes the sample of the prints that follow. Error 9 for a document without
  // spectra.
  void PrepareSampleView() override;
  void PrepareStandardView() override;
  // A document brought into view as the sample prints by itself; any other prints as the Standard beside the
  // sample brought into view last. Errors 53 for a missing template, kInvalidFileFormat for a damaged one.
  std::shared_ptr<acquisition::PrintObject> OpenPrintTemplate(const std::string& path) override;

  bool IsOpen() const { return open_; }
  const std::string& Path() const { return path_; }
  // The spectra as they stand, for printing and for tests.
  const std::vector<std::shared_ptr<OpenSpectrum>>& Spectra() const { return spectra_; }
  // Ends the document's use without saving.
  void Detach();

private:
  void RequireOpen() const;
  bool IsModified() const;
  std::string Serialized() const;
  void RequireUnchangedFile() const;
  void Saved(std::string_view bytes);
  void Append(Measurement&& measurement);
  void Transform(std::int16_t operation);
  void Export(const std::string& path);
  std::shared_ptr<OpenSpectrum>& Current();
  PrintSubject Subject();

  std::shared_ptr<DocumentSurroundings> around_;
  std::string path_;
  std::vector<std::shared_ptr<OpenSpectrum>> spectra_;
  std::size_t current_ = 0;
  bool open_ = true;
  bool changed_ = false;                    // spectra were added or replaced
  std::optional<std::size_t> file_digest_;  // hash of the file as read or saved; empty for a new document
  std::vector<std::string> left_out_;
  bool is_sample_ = false;  // was brought into view as the sample
};

}  // namespace veritane::simulator
