// The attributes of one line of a print template: "at 20 30, width 80, bold : Lot {Sample Name}".
#pragma once

#include "platform/drawing_context.h"
#include "simulator/key_value_lines.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace veritane::simulator {

// Attributes are taken one by one; what nobody took is refused at the end. All errors are error 5 with the
// line's number.
class PrintAttributes {
public:
  explicit PrintAttributes(const KeyValueLine& line);

  // Whether the attribute stands there, alone.
  bool TakeWord(const std::string& name);
  // The numbers of an attribute, `count` of them, each from `least` to `most`; nothing where it is missing.
  std::optional<std::vector<double>> TakeNumbers(const std::string& name, std::size_t count, double least,
                                                 double most);
  // Numbers that must be there, as many as are written.
  std::vector<double> RequireNumbers(const std::string& name, double least, double most);
  std::vector<double> RequireNumbers(const std::string& name, std::size_t count, double least, double most);
  double TakeNumber(const std::string& name, double otherwise, double least, double most);
  // "colour #0A3A82"; black where it is missing.
  platform::Colour TakeColour();
  // The text behind ":", blanks around it dropped; nothing where there is no ":".
  const std::optional<std::string>& Text() const { return text_; }

  void RefuseRest() const;
  [[noreturn]] void Refuse(const std::string& why) const { RefuseLine(line_, why); }

private:
  std::optional<std::vector<std::string>> Take(const std::string& name);
  double ToNumber(const std::string& name, const std::string& word, double least, double most) const;

  const KeyValueLine& line_;
  std::map<std::string, std::vector<std::string>> attributes_;
  std::optional<std::string> text_;
};

}  // namespace veritane::simulator
