// How parameters and times stand in the labels of a JCAMP-DX file.
//
// A parameter is a private label: ##$Sample Name= "abc", ##$Comparison= 97.35. A text is quoted, with \\, \"
// and \xHH for the bytes that could be taken for something else; a number is bare. Names keep their spelling;
// what could not stand in a label is written %HH.
#pragma once

#include "acquisition/spectrometer_app.h"
#include "platform/date_time.h"

#include <optional>
#include <string>
#include <string_view>

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

// A moment as "2026/11/21 10:59:00", which is how the time of a spectrum is written and what can stand as
// LONGDATE. Nothing for a text in another form.
std::string LongDate(const platform::DateTime& moment);
std::optional<platform::DateTime> ParseLongDate(std::string_view text);

// The time of a spectrum in that form from the labels LONGDATE, or DATE and TIME. Parts that are no date stay
// as they are written.
std::string TimeFromLongDate(std::string_view long_date);
std::string TimeFromDateAndTime(std::string_view date, std::string_view time);

}  // namespace veritane::simulator
