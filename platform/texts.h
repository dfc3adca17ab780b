// What the platform itself says to the users, by number from 2000 on. "&" marks the access key, "{1}" a place
// that is filled in. The short text of run-time error n is number 2000 + n.
#pragma once

#include "platform/text_table.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace veritane::platform {

enum class TextId : int {
  // The short text of errors that have none of their own; theirs follow up to 2499.
  kOtherError = 2000,

  // Errors with what they are about.
  kErrorWithDetail = 2500,
  kErrorMessage = 2501,
  kObjectExpected = 2510,
  kNoAutomationText = 2511,
  kNoAutomationNumber = 2512,
  kNoAutomationArray = 2513,
  kArrayOfDimensions = 2514,
  kArrayWithoutNumbers = 2515,
  kNoAutomationInterface = 2516,
  kUselessAutomationValue = 2517,
  kForeignObject = 2518,
  kObjectCannotBeShown = 2519,
  kNoPrinter = 2520,
  kNotOnScreen = 2521,
  kNothingToCopy = 2522,
  kClipboardRefuses = 2523,
  kPrinterRefuses = 2524,
  kPrintCommandRefuses = 2525,
  kNoPrintCommand = 2526,
  kNoPrintFile = 2527,
  kPageSides = 2528,
  kDocumentFinished = 2529,
  kNoLocale = 2530,
  kDate = 2531,
  kDateUnwritable = 2532,
  kErrorOfSystem = 2533,
  kUnknownReason = 2534,
  kNotInLibrary = 2535,
  kScriptUnreadable = 2536,
  kNoAutomation = 2540,
  kNoAutomationThread = 2541,
  kApplicationGone = 2542,
  kApplicationBusy = 2543,
  kMemberMissing = 2544,
  kArgumentCountWrong = 2545,
  kAutomationFailed = 2546,
  kRegistryRefuses = 2547,
  kClassOfAnother = 2548,
  kEnteringAutomation = 2549,
  kClass = 2550,
  kOfferingClass = 2551,

  // Boxes and windows.
  kProgramName = 2600,
  kYes = 2601,
  kNo = 2602,
  kOk = 2603,
  kCancel = 2604,
  kWaitingForServer = 2605,
  kCannotStart = 2606,
  kUnexpectedEnd = 2607,

  // Text files.
  kLineOfFile = 2700,
  kLine = 2701,
  kTextBehindField = 2702,
  kNumberTooLarge = 2703,
  kNotANumber = 2704,
  kQuoteNotClosed = 2705,

  // Names of files.
  kNameIsEmpty = 2800,
  kNameIsForbidden = 2801,
  kNameHoldsControlCharacter = 2802,
  kNameHoldsCharacter = 2803,
  kNameEndsWrongly = 2804,
  kNameOfDevice = 2805,

  // Printing.
  kPageOf = 2900,
  kPrintOutTitle = 2901,
  kPrintOut = 2902,
  kPrintOutForWantOfPrinter = 2903,
};

const TextTable& Texts();

const std::string& Text(TextId id);
// The text with its places filled in.
std::string Text(TextId id, std::initializer_list<std::string_view> values);

}  // namespace veritane::platform
