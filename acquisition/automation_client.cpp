// The application, its documents and collect methods over automation.
#include "acquisition/automation_client.h"

#include "acquisition/automation_object.h"
#include "acquisition/automation_spectrum.h"
#include "platform/run_time_error.h"
#include "shell/state/string_table.h"

#include <utility>

namespace veritane::acquisition {

namespace {

class AutomationCollectMethod : public CollectMethod {
public:
  explicit AutomationCollectMethod(ServerObject method) : method_(std::move(method)) {}

  void SetCollectOption(const std::string& option) override {
    method_.Use(Member::kSetCollectOption, {option});
  }
  void SetBackgroundFile(const std::string& spectrum) override {
    method_.Use(Member::kSetBackgroundFile, {spectrum});
  }
  void SetScanParameter(double value) override { method_.Use(Member::kSetScanParameter, {value}); }
  void SetSubParameter(double value) override {
    method_.UseForObject(Member::kGetScanSettings).Use(Member::kSetSubParameter, {value});
  }

  const ServerObject& Server() const { return method_; }

private:
  ServerObject method_;
};

class AutomationOperation : public Operation {
public:
  explicit AutomationOperation(ServerObject operation) : operation_(std::move(operation)) {}

  void SetOperation(std::int16_t operation) override { operation_.Use(Member::kSetOperation, {operation}); }
  void SetFileName(const std::string& path) override { operation_.Use(Member::kSetFileName, {path}); }

  const ServerObject& Server() const { return operation_; }

private:
  ServerObject operation_;
};

class AutomationPrint : public PrintObject {
public:
  explicit AutomationPrint(ServerObject print) : print_(std::move(print)) {}

  void PrintDoc() override { print_.Use(Member::kPrintDoc); }
  void CloseDoc() override { print_.Use(Member::kCloseDoc); }

private:
  ServerObject print_;
};

// An object of the contract as the argument of a call; it must be one that this application made.
template <typename Client, typename Contract>
platform::AutomationValue Argument(const Contract& object) {
  const auto* const client = dynamic_cast<const Client*>(&object);
  if (client == nullptr) {
    throw platform::RunTimeError(platform::ErrorNumber::kTypeMismatch,
                                 state::Text(state::TextId::kForeignObject));
  }
  return client->Server().AsArgument();
}

// The number that the instrument answers. No answer is no success, which would be 0.
std::int32_t CodeOf(const platform::AutomationValue& answer) {
  if (std::holds_alternative<std::monostate>(answer)) {
    throw platform::RunTimeError(platform::ErrorNumber::kTypeMismatch,
                                 state::Text(state::TextId::kNoInstrumentAnswer));
  }
  return Int32Of(answer);
}

class AutomationDocument : public Document {
public:
  explicit AutomationDocument(ServerObject document) : document_(std::move(document)) {}

  std::int32_t AutoAlign(CollectMethod& method) override {
    return CodeOf(document_.Use(Member::kAutoAlign, {Argument<AutomationCollectMethod>(method)}));
  }
  std::int32_t CollectInto(CollectMethod& method) override {
    return CodeOf(document_.Use(Member::kCollectInto, {Argument<AutomationCollectMethod>(method)}));
  }
  void CloseDocument(bool save) override { document_.Use(Member::kCloseDocument, {save}); }
  void CloseDocument() override { document_.Use(Member::kCloseDocument); }

  std::shared_ptr<Spectrum> GetSpectrum() override {
    return MakeAutomationSpectrum(document_.UseForObject(Member::kGetSpectrum));
  }
  std::shared_ptr<Spectrum> GetSpectrumAt(std::int16_t index) override {
    return MakeAutomationSpectrum(document_.UseForObject(Member::kGetSpectrumAt, {index}));
  }
  std::int32_t GetSpectrumCount() override { return Int32Of(document_.Use(Member::kGetSpectrumCount)); }
  void SelectSpectrum(std::int16_t index) override { document_.Use(Member::kSelectSpectrum, {index}); }

  std::shared_ptr<Operation> CreateOperation(const std::string& kind) override {
    return std::make_shared<AutomationOperation>(document_.UseForObject(Member::kCreateOperation, {kind}));
  }
  void ApplyOperation(Operation& operation) override {
    document_.Use(Member::kApplyOperation, {Argument<AutomationOperation>(operation)});
  }

  void SaveDocumentAs(const std::string& path) override { document_.Use(Member::kSaveDocumentAs, {path}); }
  void SetDocumentShown(std::int32_t flag) override { document_.Use(Member::kSetDocumentShown, {flag}); }
  void PrepareSampleView() override { document_.Use(Member::kPrepareSampleView); }
  void PrepareStandardView() override { document_.Use(Member::kPrepareStandardView); }
  std::shared_ptr<PrintObject> OpenPrintTemplate(const std::string& path) override {
    return std::make_shared<AutomationPrint>(document_.UseForObject(Member::kOpenPrintTemplate, {path}));
  }

private:
  ServerObject document_;
};

class AutomationApp : public SpectrometerApp {
public:
  AutomationApp(platform::Automation& automation, ServerObject application)
      : automation_(automation), application_(std::move(application)) {}

  void SetWaiting(const AutomationWaiting& waiting) override { automation_.SetWaiting(waiting); }
  void Interactive(bool interactive) override { application_.Use(Member::kInteractive, {interactive}); }
  std::shared_ptr<Document> OpenDocument(const std::string& path) override {
    return std::make_shared<AutomationDocument>(Documents().UseForObject(Member::kOpenDocument, {path}));
  }
  std::shared_ptr<Document> NewDocument(const std::string& path) override {
    return std::make_shared<AutomationDocument>(Documents().UseForObject(Member::kNewDocument, {path}));
  }
  std::shared_ptr<CollectMethod> LoadCollectMethod(const std::string& path) override {
    return std::make_shared<AutomationCollectMethod>(
        application_.UseForObject(Member::kLoadCollectMethod, {path}));
  }
  std::shared_ptr<Document> ActiveDocument() override {
    return std::make_shared<AutomationDocument>(application_.UseForObject(Member::kActiveDocument));
  }
  void BeginPrint() override { application_.Use(Member::kBeginPrint); }
  void QuitApplication() override { application_.Use(Member::kQuitApplication); }

private:
  ServerObject Documents() const { return application_.UseForObject(Member::kDocuments); }

  platform::Automation& automation_;
  ServerObject application_;
};

}  // namespace

std::unique_ptr<SpectrometerApp> ConnectSpectrometerApp(platform::Automation& automation,
                                                        const std::string& prog_id,
                                                        const AutomationMembers& members) {
  return std::make_unique<AutomationApp>(
      automation,
      ServerObject(automation.Create(prog_id), std::make_shared<const AutomationMembers>(members)));
}

}  // namespace veritane::acquisition
