// The fields of a print template's texts, and what they are filled with.
//
// "{Sample Name}" is the sample's parameter of that name, "{Standard.SpectName}" the Standard's, "{Printed}"
// the moment of printing, "{File}" and "{Standard.File}" the files' names, "{Markers}" the wavenumbers of the
// markers. "{Comparison|0.00}" writes a number by a pattern, else it is written to six significant digits.
// "{{" is a brace. Names are read without regard to case; a value that is missing or empty is written as a
// dash.
#pragma once

#include "platform/date_time.h"
#include "simulator/simulated_spectrum.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace veritane::simulator {

// A spectrum with the path of its document.
struct PrintedSpectrum {
  std::shared_ptr<const OpenSpectrum> spectrum;
  std::string path;
};

// What a template is filled with. Either may be missing.
struct PrintSubject {
  PrintedSpectrum sample;
  PrintedSpectrum standard;
  platform::DateTime printed;
};

// Why a text with fields makes no sense, as a sentence, or "" when it does.
std::string WhyNotFields(const std::string& text);

// The text with its fields filled in.
std::string FilledIn(const std::string& text, const PrintSubject& subject);

// The names in a text's fields, in upper case.
std::set<std::string> FieldNames(const std::string& text);

// The wavenumbers where the markers of both spectra stand, falling, each once.
std::vector<double> MarkerPlaces(const PrintSubject& subject);

// "1601.2"
std::string WavenumberText(double wavenumber);

// A parameter's value as text: numbers to six significant digits.
std::string ValueText(const acquisition::ParameterValue& value);

}  // namespace veritane::simulator
