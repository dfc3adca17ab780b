// How parameters and times stand in the labels of a JCAMP-DX file.
//
// A parameter is a private label: ##$Sample Name= "abc", ##$Comparison= 97.35. A text is quoted, with \\, \"
// and \xHH for the bytes that could be taken for something else; a number is bare. Names keep their spelling;
// what could not stand in a label is written %HH.
#pragma once

#include <string>
#include <string_view>

#include "acquisition/spectrometer_app.h"

namespace veritane::simulator {

// A private label of this program that holds a spectrum's exact name or time where the public label cannot.
inline constexpr std::string_view kExactNameLabel = "$VERITANENAME";
inline constexpr std::string_view kExactTimeLabel = "$VERITANETIME";

std::string WrittenParameterName(std::string_view name);
std::string ReadParameterName(std::string_view written);

std::string WrittenValue(const acquisition::ParameterValue& value);
// What is neither quoted nor a number as this program writes it ("0.50", "<waltz16>") is a text as it stands.
acquisition::ParameterValue ReadValue(std::string_view written);

// The shortest text that reads back as the same double.
std::string ExactNumber(double number);

// A text as it can stand behind a public label: one line, no comment mark, blanks around it dropped.
std::string PlainLine(std::string_view text);

// The time of a spectrum in the form "2026/11/21 10:59:00" from the labels LONGDATE, or DATE and TIME. Parts
// that are no date stay as they are written.
std::string TimeFromLongDate(std::string_view long_date);
std::string TimeFromDateAndTime(std::string_view date, std::string_view time);
// Whether the text is in that form, and so can stand as LONGDATE.
bool IsLongDate(std::string_view text);

}  // namespace veritane::simulator
