// The whole contract with the Spectrometer application, the instrument's control program. The program
// measures, reads and writes spectra, transforms and prints through these objects alone.
//
// All paths are Windows paths. Every call blocks until it is done. Failures of a call (a missing or damaged
// file, a full disk, a server that is gone) are RunTimeError; failures of the instrument are numbers that
// AutoAlign and CollectInto return.
#pragma once

#include "platform/automation.h"
#include "shell/state/spectrum_buffer.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <variant>

namespace veritane::acquisition {

// The name under which a system has the application registered.
inline constexpr const char* kSpectrometerProgId = "quillon.app.1";

// Error numbers of the instrument.
inline constexpr int kNoInstrumentError = 0;
inline constexpr int kWrongAccessory = 11079;

// The kinds of CreateOperation, and the value of Operation that asks for the transform.
inline constexpr const char* kUnaryOperation = "Unary";
inline constexpr const char* kExportOperation = "Export";
inline constexpr std::int16_t kTransformOperation = 6;

using ParameterValue = std::variant<std::string, double>;

// A named value attached to a spectrum.
class Parameter {
public:
  virtual ~Parameter() = default;
  virtual ParameterValue Value() const = 0;
  virtual void SetValue(const ParameterValue& value) = 0;
};

class ParameterList {
public:
  virtual ~ParameterList() = default;
  // Adds an empty parameter of this name, or does nothing when there is one. `kind` is always 1.
  virtual void AddParameter(const std::string& name, std::int32_t kind) = 0;
};

// The points of a spectrum. Element i of Values() lies at i × Spacing() cm⁻¹.
class SpectrumData {
public:
  virtual ~SpectrumData() = default;
  virtual double Spacing() const = 0;
  virtual std::int32_t NumberOfPoints() const = 0;
  virtual state::Ordinates Values() const = 0;
};

// A marker on a spectrum, drawn when it is printed.
class Marker {
public:
  virtual ~Marker() = default;
  virtual void SetKind(std::int32_t kind) = 0;
  virtual void SetStyle(std::int32_t style) = 0;
  // The object that says where the marker stands.
  virtual void SetDefinition(std::int32_t argument, std::int32_t defining_method, double lower_bound) = 0;
};

class MarkerList {
public:
  virtual ~MarkerList() = default;
  virtual std::shared_ptr<Marker> AddMarker(double x) = 0;
  virtual void ClearMarkers() = 0;
};

// One spectrum inside a document. Stays readable as long as somebody holds it.
class Spectrum {
public:
  virtual ~Spectrum() = default;
  virtual std::shared_ptr<acquisition::SpectrumData> SpectrumData() = 0;
  // "SpectName" and "Time" exist on every spectrum; error 5 for a name that was never added.
  virtual std::shared_ptr<Parameter> GetParameter(const std::string& name) = 0;
  virtual std::shared_ptr<ParameterList> GetParameterList() = 0;
  virtual std::shared_ptr<MarkerList> GetMarkerList() = 0;
};

// How to measure, read from a ".clm" file.
class CollectMethod {
public:
  virtual ~CollectMethod() = default;
  // Always "NI".
  virtual void SetCollectOption(const std::string& option) = 0;
  // Path of a background file with "(1)" behind it: the spectrum to measure against.
  virtual void SetBackgroundFile(const std::string& spectrum) = 0;
  // The two settings made before the calibration scan.
  virtual void SetScanParameter(double value) = 0;
  virtual void SetSubParameter(double value) = 0;
};

// A processing step of one of the kinds above. A property that its kind does not have is error 5.
class Operation {
public:
  virtual ~Operation() = default;
  // Of "Unary": which step.
  virtual void SetOperation(std::int16_t operation) = 0;
  // Of "Export": the path of the SPC file to write.
  virtual void SetFileName(const std::string& path) = 0;
};

class PrintObject {
public:
  virtual ~PrintObject() = default;
  virtual void PrintDoc() = 0;
  virtual void CloseDoc() = 0;
};

// A spectrum file that the application has open: a list of spectra numbered from 1, of which one is current.
class Document {
public:
  virtual ~Document() = default;

  // Runs the instrument's automatic alignment; 0 or the instrument's error number.
  virtual std::int32_t AutoAlign(CollectMethod& method) = 0;
  // Measures one spectrum and appends it to the document as the current one; 0 or the instrument's error
  // number.
  virtual std::int32_t CollectInto(CollectMethod& method) = 0;
  // Ends the document's use. With `save` it is first written to its path.
  virtual void CloseDocument(bool save) = 0;
  virtual void CloseDocument() = 0;

  // The current spectrum.
  virtual std::shared_ptr<Spectrum> GetSpectrum() = 0;
  virtual std::shared_ptr<Spectrum> GetSpectrumAt(std::int16_t index) = 0;
  virtual std::int32_t GetSpectrumCount() = 0;
  // Makes a spectrum the current one; an index beyond the last selects the last.
  virtual void SelectSpectrum(std::int16_t index) = 0;

  virtual std::shared_ptr<Operation> CreateOperation(const std::string& kind) = 0;
  // "Unary" replaces the current spectrum by the result. "Export" writes the current spectrum to the file
  // named, over one that is there; the document stays as it was.
  virtual void ApplyOperation(Operation& operation) = 0;

  // Writes the document to a new path, which is its path from then on.
  virtual void SaveDocumentAs(const std::string& path) = 0;
  virtual void SetDocumentShown(std::int32_t flag) = 0;
  virtual void PrepareSampleView() = 0;
  virtual void PrepareStandardView() = 0;
  virtual std::shared_ptr<PrintObject> OpenPrintTemplate(const std::string& path) = 0;
};

using platform::AutomationWaiting;

class SpectrometerApp {
public:
  virtual ~SpectrometerApp() = default;

  virtual void SetWaiting(const AutomationWaiting& waiting) = 0;
  // False while the program drives the application, true when it hands it back to the user.
  virtual void Interactive(bool interactive) = 0;
  virtual std::shared_ptr<Document> OpenDocument(const std::string& path) = 0;
  // An empty document that is written to `path` when it is closed with saving.
  virtual std::shared_ptr<Document> NewDocument(const std::string& path) = 0;
  virtual std::shared_ptr<CollectMethod> LoadCollectMethod(const std::string& path) = 0;
  virtual std::shared_ptr<Document> ActiveDocument() = 0;
  virtual void BeginPrint() = 0;
  virtual void QuitApplication() = 0;
};

// Creates the application's automation object; error 429 when that fails.
using CreateSpectrometerApp = std::function<std::unique_ptr<SpectrometerApp>(const std::string& prog_id)>;

}  // namespace veritane::acquisition
