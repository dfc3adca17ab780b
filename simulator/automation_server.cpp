// The contract, object by object, as members.
#include "simulator/automation_server.h"

#include "platform/run_time_error.h"
#include "simulator/automation_object.h"
#include "simulator/automation_spectrum.h"

#include <utility>

namespace veritane::simulator {

namespace {

using acquisition::Member;

// The object of the contract that an argument stands for.
template <typename Contract>
Contract& TargetOf(const platform::AutomationValue& argument) {
  const auto object = std::dynamic_pointer_cast<ObjectFor<Contract>>(ObjectOf(argument));
  if (object == nullptr) {
    throw platform::RunTimeError(platform::ErrorNumber::kTypeMismatch, "the object is of another kind");
  }
  return object->Target();
}

std::shared_ptr<SimulatorObject> Serve(const MemberNames& names,
                                       const std::shared_ptr<acquisition::CollectMethod>& method) {
  auto object = std::make_shared<ObjectFor<acquisition::CollectMethod>>(names, method);
  object->Serve(Member::kSetCollectOption, 1,
                [method](Arguments given) { method->SetCollectOption(TextOf(given[0])); });
  object->Serve(Member::kSetBackgroundFile, 1,
                [method](Arguments given) { method->SetBackgroundFile(TextOf(given[0])); });
  object->Serve(Member::kSetScanParameter, 1,
                [method](Arguments given) { method->SetScanParameter(NumberOf(given[0])); });
  object->Serve(Member::kGetScanSettings, 0, [names, method](Arguments) {
    auto settings = std::make_shared<SimulatorObject>(names);
    settings->Serve(Member::kSetSubParameter, 1,
                    [method](Arguments given) { method->SetSubParameter(NumberOf(given[0])); });
    return settings;
  });
  return object;
}

std::shared_ptr<SimulatorObject> Serve(const MemberNames& names,
                                       const std::shared_ptr<acquisition::Operation>& operation) {
  auto object = std::make_shared<ObjectFor<acquisition::Operation>>(names, operation);
  object->Serve(Member::kSetOperation, 1,
                [operation](Arguments given) { operation->SetOperation(Int16Of(given[0])); });
  object->Serve(Member::kSetFileName, 1,
                [operation](Arguments given) { operation->SetFileName(TextOf(given[0])); });
  return object;
}

std::shared_ptr<SimulatorObject> Serve(const MemberNames& names,
                                       const std::shared_ptr<acquisition::PrintObject>& print) {
  auto object = std::make_shared<SimulatorObject>(names);
  object->Serve(Member::kPrintDoc, 0, [print](Arguments) { print->PrintDoc(); });
  object->Serve(Member::kCloseDoc, 0, [print](Arguments) { print->CloseDoc(); });
  return object;
}

using SharedDocument = std::shared_ptr<acquisition::Document>;

void ServeMeasuring(SimulatorObject& object, const SharedDocument& document) {
  object.Serve(Member::kAutoAlign, 1, [document](Arguments given) {
    return document->AutoAlign(TargetOf<acquisition::CollectMethod>(given[0]));
  });
  object.Serve(Member::kCollectInto, 1, [document](Arguments given) {
    return document->CollectInto(TargetOf<acquisition::CollectMethod>(given[0]));
  });
}

void ServeFile(SimulatorObject& object, const SharedDocument& document) {
  object.Serve(Member::kCloseDocument, 0, [document](Arguments) { document->CloseDocument(); });
  object.Serve(Member::kCloseDocument, 1,
               [document](Arguments given) { document->CloseDocument(BooleanOf(given[0])); });
  object.Serve(Member::kSaveDocumentAs, 1,
               [document](Arguments given) { document->SaveDocumentAs(TextOf(given[0])); });
}

void ServeSpectra(SimulatorObject& object, const MemberNames& names, const SharedDocument& document) {
  object.Serve(Member::kGetSpectrum, 0,
               [names, document](Arguments) { return ServeSpectrum(names, document->GetSpectrum()); });
  object.Serve(Member::kGetSpectrumAt, 1, [names, document](Arguments given) {
    return ServeSpectrum(names, document->GetSpectrumAt(Int16Of(given[0])));
  });
  object.Serve(Member::kGetSpectrumCount, 0, [document](Arguments) { return document->GetSpectrumCount(); });
  object.Serve(Member::kSelectSpectrum, 1,
               [document](Arguments given) { document->SelectSpectrum(Int16Of(given[0])); });
  object.Serve(Member::kCreateOperation, 1, [names, document](Arguments given) {
    return Serve(names, document->CreateOperation(TextOf(given[0])));
  });
  object.Serve(Member::kApplyOperation, 1, [document](Arguments given) {
    document->ApplyOperation(TargetOf<acquisition::Operation>(given[0]));
  });
}

void ServeViews(SimulatorObject& object, const MemberNames& names, const SharedDocument& document) {
  object.Serve(Member::kSetDocumentShown, 1,
               [document](Arguments given) { document->SetDocumentShown(Int32Of(given[0])); });
  object.Serve(Member::kPrepareSampleView, 0, [document](Arguments) { document->PrepareSampleView(); });
  object.Serve(Member::kPrepareStandardView, 0, [document](Arguments) { document->PrepareStandardView(); });
  object.Serve(Member::kOpenPrintTemplate, 1, [names, document](Arguments given) {
    return Serve(names, document->OpenPrintTemplate(TextOf(given[0])));
  });
}

std::shared_ptr<SimulatorObject> Serve(const MemberNames& names, const SharedDocument& document) {
  auto object = std::make_shared<SimulatorObject>(names);
  ServeMeasuring(*object, document);
  ServeFile(*object, document);
  ServeSpectra(*object, names, document);
  ServeViews(*object, names, document);
  return object;
}

using SharedApp = std::shared_ptr<acquisition::SpectrometerApp>;

std::shared_ptr<SimulatorObject> ServeDocuments(const MemberNames& names, const SharedApp& app) {
  auto documents = std::make_shared<SimulatorObject>(names);
  documents->Serve(Member::kOpenDocument, 1, [names, app](Arguments given) {
    return Serve(names, app->OpenDocument(TextOf(given[0])));
  });
  documents->Serve(Member::kNewDocument, 1, [names, app](Arguments given) {
    return Serve(names, app->NewDocument(TextOf(given[0])));
  });
  return documents;
}

}  // namespace

std::shared_ptr<platform::ServedObject> ServeSpectrometerApp(const SharedApp& app,
                                                             const acquisition::AutomationMembers& members) {
  const auto names = std::make_shared<const acquisition::AutomationMembers>(members);
  auto object = std::make_shared<SimulatorObject>(names);
  object->Serve(Member::kInteractive, 1, [app](Arguments given) { app->Interactive(BooleanOf(given[0])); });
  object->Serve(Member::kDocuments, 0, [names, app](Arguments) { return ServeDocuments(names, app); });
  object->Serve(Member::kLoadCollectMethod, 1, [names, app](Arguments given) {
    return Serve(names, app->LoadCollectMethod(TextOf(given[0])));
  });
  object->Serve(Member::kActiveDocument, 0,
                [names, app](Arguments) { return Serve(names, app->ActiveDocument()); });
  object->Serve(Member::kBeginPrint, 0, [app](Arguments) { app->BeginPrint(); });
  object->Serve(Member::kQuitApplication, 0, [app](Arguments) { app->QuitApplication(); });
  return object;
}

}  // namespace veritane::simulator
