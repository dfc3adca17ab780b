// Printing: what is printed, drawn page by page, and what prints it.
#pragma once

#include "platform/drawing_context.h"

#include <optional>
#include <string>

namespace veritane::platform {

enum class PrintKind {
  kChart,
  kText,
  // A page that the Spectrometer application made by a print template.
  kTemplate
};

// One document to be printed. A page's surface is its printable area.
class Printout {
public:
  virtual ~Printout() = default;

  virtual PrintKind Kind() const = 0;
  // What the document is called among other prints.
  virtual std::string Title() const = 0;
  virtual bool IsLandscape() const = 0;

  // Divides the document into pages like this one and returns how many they are, at least 1.
  virtual int LayOut(const DrawingContext& page) = 0;
  // Draws a page, counted from 1.
  virtual void DrawPage(DrawingContext& page, int number) = 0;
};

class Printer {
public:
  virtual ~Printer() = default;

  // Prints the document, and returns the Windows path of the file that it went into, or "" when it went to a
  // printer; nothing when the user gave the print up in a box of the printer's. Errors 57 for a printer that
  // does not take it, and the file system's.
  virtual std::optional<std::string> Print(Printout& printout) = 0;
};

// The printers of the system.
class PrintQueue {
public:
  virtual ~PrintQueue() = default;

  // Whether the system knows a default printer.
  virtual bool HasPrinter() const = 0;
  // Hands a PDF to the default printer; error 57 when it is not taken.
  virtual void Submit(const std::string& pdf, const std::string& title) = 0;
};

}  // namespace veritane::platform
