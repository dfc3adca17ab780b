// The print object of the simulator.
#include "simulator/print_object.h"

#include "platform/print_file.h"
#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "simulator/print_page.h"

#include <utility>

namespace veritane::simulator {

using platform::ErrorNumber;
using platform::RunTimeError;

namespace {

// What the print is filed under: the sample's name where the program set it, else its spectrum's.
std::string NameOf(const PrintSubject& subject) {
  for (const NamedValue& parameter : subject.sample.spectrum->stored.parameters) {
    if (platform::UpperCase(parameter.name) == "SAMPLE NAME") return ValueText(parameter.value);
  }
  return subject.sample.spectrum->stored.name;
}

}  // namespace

SimulatedPrint::SimulatedPrint(std::shared_ptr<DocumentSurroundings> around, PrintTemplate print_template,
                               PrintSubject subject)
    : around_(std::move(around)), template_(std::move(print_template)), subject_(std::move(subject)) {}

void SimulatedPrint::PrintDoc() {
  around_->calls->Note("PrintDoc");
  if (!open_) throw RunTimeError(ErrorNumber::kInvalidCall, "the print template is closed");
  if (!around_->printBegun) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "printing has to be begun before a template is printed");
  }
  if (!subject_.sample.spectrum) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "no sample is in view to be printed");
  }
  const PrintSettings& settings = around_->printing;
  if (!settings.makePdf || settings.folder.empty()) {
    throw RunTimeError(ErrorNumber::kDeviceError, "there is nothing here to print on");
  }
  subject_.printed = around_->clock.LocalNow();
  const std::string bytes = settings.makePdf(
      PageSize(template_), {.title = FilledIn(template_.title, subject_), .created = subject_.printed},
      [this](platform::DrawingContext& page) { DrawPage(template_, subject_, page); });
  const std::string path =
      platform::NewPrintPath(around_->files, settings.folder, NameOf(subject_), subject_.printed);
  around_->files.WriteBytes(path, bytes);
  if (settings.printed) settings.printed(path);
}

void SimulatedPrint::CloseDoc() {
  around_->calls->Note("CloseDoc");
  if (!open_) throw RunTimeError(ErrorNumber::kInvalidCall, "the print template is closed");
  open_ = false;
  around_->printBegun = false;
  // The next print shows a sample that the program brought into view for it, or none.
  around_->sampleInView = {};
}

}  // namespace veritane::simulator
