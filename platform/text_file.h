// Small text files: lines end CR LF, UTF-8 (Windows-1252 where the bytes are not UTF-8).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::platform {

inline constexpr std::string_view kLineEnd = "\r\n";

// The bytes as UTF-8 text: as they are when they are valid UTF-8 (a byte-order mark is dropped), else read as
// Windows-1252.
std::string DecodeText(std::string_view bytes);

// The text without the blanks and tabs around it.
std::string_view TrimBlanks(std::string_view text);

// Reads a text front to back, as fields (cut at a comma or line end) or as whole lines. Lines may end CR LF,
// LF or CR; a missing last line end does not matter.
class TextReader {
public:
  // Keeps a copy of the text. `bytes` as they come from the file; `source` is its path, for the text of
  // errors.
  explicit TextReader(std::string_view bytes, std::string source = "");

  bool AtEnd() const { return position_ >= text_.size(); }

  // The next line without its end. Error 62 at the end of the file.
  std::string ReadLine();
  // The next field, blanks around it dropped, a double-quoted one whole. Error 62 at the end of the file, 13
  // for text behind a closing quote and for a quote that is never closed.
  std::string ReadField();
  // The next field as a number: rounded half to even for integers. Error 13 when the field is no number, 6
  // when it does not fit.
  std::int16_t ReadInt16();
  double ReadDouble();

private:
  std::string ReadQuoted();
  void SkipLineEnd();
  void RequireMore() const;
  std::string Place() const;

  std::string text_;
  std::string source_;
  int line_ = 1;
  std::size_t position_ = 0;
};

// A list in a file of its own: the count, then a line an entry. Errors 62 and 13 for a file that ends too
// soon or has no count.
std::vector<std::string> ReadCountedLines(std::string_view bytes, const std::string& source);
std::string CountedLines(const std::vector<std::string>& lines);

}  // namespace veritane::platform
