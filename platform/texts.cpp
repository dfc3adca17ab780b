// The platform's own texts.
#include "platform/texts.h"

namespace veritane::platform {

const TextTable& Texts() {
  // clang-format off
  static const TextTable table{
    {2000, "Application-defined or object-defined error"},
    {2005, "Invalid procedure call or argument"},
    {2006, "Overflow"},
    {2007, "Out of memory"},
    {2009, "Subscript out of range"},
    {2011, "Division by zero"},
    {2013, "Type mismatch"},
    {2052, "Bad file name or number"},
    {2053, "File not found"},
    {2055, "File already open"},
    {2057, "Device I/O error"},
    {2058, "File already exists"},
    {2061, "Disk full"},
    {2062, "Input past end of file"},
    {2070, "Permission denied"},
    {2071, "Disk not ready"},
    {2075, "Path/File access error"},
    {2076, "Path not found"},
    {2429, "Cannot create the automation object"},
    {2500, "{1}: {2}"},
    {2501, "Run-time error {1}: {2}"},
    {2510, "Object required"},
    {2511, "an automation value is no text"},
    {2512, "an automation value is no number"},
    {2513, "an automation value is no array of numbers"},
    {2514, "an automation array has more than one dimension"},
    {2515, "an automation array holds no numbers"},
    {2516, "an object has no automation interface"},
    {2517, "an automation value of type {1} is of no use"},
    {2518, "the object belongs to another application"},
    {2519, "the object cannot be shown"},
    {2520, "there is no printer"},
    {2521, "{1} is not on screen"},
    {2522, "there is nothing on screen to copy"},
    {2523, "the clipboard does not take the picture"},
    {2524, "the printer {1} did not take the print"},
    {2525, "the printer did not take the print. {1}"},
    {2526, "the command {1} cannot be run"},
    {2527, "no temporary file for the printer"},
    {2528, "a page's sides are 1 to 14400 points long"},
    {2529, "the document is finished"},
    {2530, "the locale \"{1}\" is not installed"},
    {2531, "the date"},
    {2532, "the date cannot be written"},
    {2533, "error {1}"},
    {2534, "unknown reason"},
    {2535, "{1} in {2}"},
    {2536, "the script cannot be read"},
    {2540, "{1}: this system has no automation"},
    {2541, "Automation error: the system lets this thread make no calls"},
    {2542, "{1}: the application was closed or has failed. {2}"},
    {2543, "{1}: the application is busy. {2}"},
    {2544, "Object doesn't support this property or method: {1}"},
    {2545, "Wrong number of arguments: {1}"},
    {2546, "Automation error in {1}: {2}"},
    {2547, "The registry below {1} cannot be written: {2}"},
    {2548, "{1} belongs to another program ({2} below {3}) and is left to it"},
    {2549, "Entering the system's automation"},
    {2550, "The class"},
    {2551, "Offering the class"},
    {2600, "Veritane"},
    {2601, "&Yes"},
    {2602, "&No"},
    {2603, "OK"},
    {2604, "Cancel"},
    {2605, "Wait until analyzer finishes process…"},
    {2606, "Veritane cannot start. {1}"},
    {2607, "The program has to end: {1}"},
    {2700, "{1}, line {2}"},
    {2701, "line {1}"},
    {2702, "{1}: there is text behind \"{2}\""},
    {2703, "{1}: {2} is too large"},
    {2704, "{1}: \"{2}\" is not a number"},
    {2705, "{1}: a quote is never closed"},
    {2800, "The name is empty."},
    {2801, "The name may not be \"{1}\"."},
    {2802, "The name holds a control character."},
    {2803, "The name may not hold the character {1} ."},
    {2804, "The name may not end with a blank or a point."},
    {2805, "The name is reserved for a device."},
    {2900, "{1}, page {2} of {3}"},
    {2901, "Print-out"},
    {2902, "The print-out is in this file:\n{1}"},
    {2903, "No printer is installed. The print-out is in this file:\n{1}"},
  };
  // clang-format on
  return table;
}

const std::string& Text(TextId id) {
  return Texts().At(static_cast<int>(id));
}

std::string Text(TextId id, std::initializer_list<std::string_view> values) {
  return FillPlaces(Text(id), values);
}

}  // namespace veritane::platform
