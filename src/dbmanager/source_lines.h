// The lines of a source file, plain or gzip, with CR LF or LF, and the parts
// that all the line formats share: blank-separated fields, numbers, texts in
// Latin-1 or UTF-8, and the two-line head with format version and data cycle.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

// Reads line by line in constant memory. A line above 64 KiB is cut there.
class LineReader {
 public:
  static constexpr std::size_t longestLine = 65536;

  // Throws BuildError if the file cannot be opened.
  explicit LineReader(const std::filesystem::path& file);
  // Lines of a text in memory, which must live as long as the reader.
  LineReader(std::string name, std::string_view text);
  ~LineReader();
  LineReader(LineReader&&) noexcept;

  // The next line without its end, valid until the next call; false at the end
  // of the file. Throws BuildError if the file is damaged or cut off.
  bool Next(std::string_view& line);

  // The number of the line that Next() gave, from 1.
  std::size_t LineNumber() const { return lineNumber; }
  // File name without folders, as reports show it.
  const std::string& Name() const { return name; }

 private:
  struct Input;
  bool Refill();

  std::string name;
  std::unique_ptr<Input> input;  // none for a text in memory
  std::string buffer;
  std::string_view rest;
  std::size_t lineNumber = 0;
  bool skipToLineEnd = false;
};

// A whole file, unpacked if it is gzip. Throws BuildError if it is missing,
// damaged, or larger than 256 MiB when unpacked.
std::string ReadWholeSource(const std::filesystem::path& file);

// A line's fields, separated by blanks and tabs. Fields behind the 40th stay
// part of the last one's From().
class LineFields {
 public:
  explicit LineFields(std::string_view line);

  std::size_t Count() const { return count; }
  // Empty beyond the last field.
  std::string_view operator[](std::size_t field) const {
    return field < count ? fields[field] : std::string_view{};
  }
  // The line from this field to its end, without blanks at the end.
  std::string_view From(std::size_t field) const;
  // The field as a number; nothing if it is missing or anything else is in it.
  std::optional<double> Number(std::size_t field) const;
  std::optional<int> Whole(std::size_t field) const;

 private:
  static constexpr std::size_t mostFields = 40;
  std::string_view line;
  std::array<std::string_view, mostFields> fields;
  std::size_t count = 0;
};

// A finite number that fills the text, with sign and decimals; else nothing.
std::optional<double> ParseNumber(std::string_view text);
std::optional<int> ParseWhole(std::string_view text);

struct SourcePosition {
  double lat = 0;  // degrees, north positive
  double lon = 0;  // degrees, east positive
};

// Two fields as a position; nothing if one is no number or outside the globe.
std::optional<SourcePosition> ParsePosition(const LineFields& fields, std::size_t latField);

// A text of a source, UTF-8 or else Latin-1, in the database's code page.
// Control characters become blanks; blanks at both ends go.
std::string CodePageOf(std::string_view sourceText);

struct SourceHead {
  int version = 0;    // 600, 640, 810, 1000, 1100 ...
  std::string cycle;  // "2013.10", "1801"; empty if the file names none
};

// Reads the first lines with text: "I" or "A" (which some files lack), then
// "1000 Version ...". Throws BuildError if they are not that or the version is
// outside the range.
SourceHead ReadSourceHead(LineReader& lines, int lowestVersion, int highestVersion);
