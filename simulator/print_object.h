// Printing a document through a template that was opened for it.
#pragma once

#include "simulator/print_fields.h"
#include "simulator/print_template.h"
#include "simulator/simulated_document.h"

#include <memory>
#include <string>

namespace veritane::simulator {

class SimulatedPrint : public acquisition::PrintObject {
public:
  // `subject` is what is printed; its moment is set when it is.
  SimulatedPrint(std::shared_ptr<DocumentSurroundings> around, PrintTemplate print_template,
                 PrintSubject subject);

  // Makes one page and files it. Error 5 when printing was not begun, the template is closed or no sample is
  // in view; 57 when the page cannot be made; the file system's errors. A print that failed leaves no file.
  void PrintDoc() override;
  // Ends printing; no sample is in view from then on. Error 5 when the template is closed already.
  void CloseDoc() override;

private:
  std::shared_ptr<DocumentSurroundings> around_;
  PrintTemplate template_;
  PrintSubject subject_;
  bool open_ = true;
};

}  // namespace veritane::simulator
