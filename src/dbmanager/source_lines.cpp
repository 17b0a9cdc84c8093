#include "dbmanager/source_lines.h"

#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>

#include "base/code_page.h"
#include "base/fixed_text.h"
#include "dbmanager/source_error.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t bufferSize = std::size_t{1} << 20;
constexpr std::size_t largestSource = std::size_t{256} << 20;

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

class GzipFile {
 public:
  explicit GzipFile(const fs::path& path) : path(path) {
    std::error_code error;
    if (fs::is_directory(path, error)) throw BuildError(path.string() + ": is a folder");
    file = gzopen(path.c_str(), "rb");
    if (file == nullptr) throw BuildError(path.string() + ": " + std::strerror(errno));
    gzbuffer(file, 1u << 18);
  }
  ~GzipFile() { gzclose(file); }
  GzipFile(const GzipFile&) = delete;
  GzipFile& operator=(const GzipFile&) = delete;

  // 0 only at the end of an undamaged file.
  std::size_t Read(char* to, std::size_t size) {
    const int got = gzread(file, to, static_cast<unsigned>(size));
    if (got > 0) return static_cast<std::size_t>(got);
    int code = Z_OK;
    const char* words = gzerror(file, &code);
    if (code == Z_BUF_ERROR) throw BuildError(path.string() + ": the compressed data end too early");
    if (got < 0) throw BuildError(words);  // which name the file
    return 0;
  }

 private:
  fs::path path;
  gzFile file = nullptr;
};

}  // namespace

struct LineReader::Input {
  explicit Input(const fs::path& path) : file(path) {}
  GzipFile file;
};

LineReader::LineReader(const fs::path& file)
    : name(file.filename().string()), input(std::make_unique<Input>(file)) {}

LineReader::LineReader(std::string name, std::string_view text) : name(std::move(name)), rest(text) {}

LineReader::~LineReader() = default;
LineReader::LineReader(LineReader&&) noexcept = default;

// Keeps what is left unread and adds to it; false when there is nothing more.
bool LineReader::Refill() {
  if (!input) return false;
  const std::size_t kept = rest.size();
  std::string larger;
  larger.reserve(kept + bufferSize);
  larger.assign(rest);
  larger.resize(kept + bufferSize);
  const std::size_t got = input->file.Read(larger.data() + kept, bufferSize);
  larger.resize(kept + got);
  buffer = std::move(larger);
  rest = buffer;
  return got > 0;
}

bool LineReader::Next(std::string_view& line) {
  for (;;) {
    std::size_t end = rest.find('\n');
    const bool atEnd = end == std::string_view::npos && rest.size() < longestLine && !Refill();
    if (atEnd && (rest.empty() || skipToLineEnd)) return false;
    if (end == std::string_view::npos && !atEnd) {
      end = rest.find('\n');
      if (end == std::string_view::npos && rest.size() < longestLine) continue;
    }
    const bool cut = !atEnd && end == std::string_view::npos;
    line = rest.substr(0, std::min(end, rest.size()));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    const bool partOfCutLine = skipToLineEnd;
    skipToLineEnd = cut;
    if (partOfCutLine) continue;
    ++lineNumber;
    line = line.substr(0, longestLine);
    while (!line.empty() && line.back() == '\r')
      line.remove_suffix(1);
    return true;
  }
}

std::string ReadWholeSource(const fs::path& file) {
  GzipFile input(file);
  std::string text;
  for (;;) {
    const std::size_t have = text.size();
    if (have > largestSource) throw BuildError(file.string() + ": too large");
    text.resize(have + bufferSize);
    const std::size_t got = input.Read(text.data() + have, bufferSize);
    text.resize(have + got);
    if (got == 0) return text;
  }
}

LineFields::LineFields(std::string_view text) : line(text) {
  std::size_t at = 0;
  while (count < mostFields) {
    while (at < line.size() && IsBlank(line[at]))
      ++at;
    if (at >= line.size()) return;
    const std::size_t start = at;
    while (at < line.size() && !IsBlank(line[at]))
      ++at;
    fields[count++] = line.substr(start, at - start);
  }
}

std::string_view LineFields::From(std::size_t field) const {
  if (field >= count) return {};
  std::string_view text = line.substr(static_cast<std::size_t>(fields[field].data() - line.data()));
  while (!text.empty() && IsBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

std::optional<double> LineFields::Number(std::size_t field) const {
  return ParseNumber((*this)[field]);
}

std::optional<int> LineFields::Whole(std::size_t field) const {
  return ParseWhole((*this)[field]);
}

std::optional<double> ParseNumber(std::string_view text) {
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || error != std::errc{} || end != text.data() + text.size() || !std::isfinite(value)) {
    return std::nullopt;
  }
  return value;
}

std::optional<int> ParseWhole(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return value;
}

std::optional<SourcePosition> ParsePosition(const LineFields& fields, std::size_t latField) {
  const auto lat = fields.Number(latField);
  const auto lon = fields.Number(latField + 1);
  if (!lat || !lon || std::abs(*lat) > 90 || std::abs(*lon) > 180) return std::nullopt;
  return SourcePosition{*lat, *lon};
}

std::string CodePageOf(std::string_view sourceText) {
  const bool plain = std::all_of(sourceText.begin(), sourceText.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  std::string text = !plain && IsValidUtf8(sourceText) ? Utf8ToCodePage(sourceText) : std::string(sourceText);
  for (char& c : text) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) c = ' ';
  }
  return std::string(Trimmed(text));
}

namespace {

bool NextWithText(LineReader& lines, std::string_view& line) {
  while (lines.Next(line)) {
    if (line.starts_with("\xEF\xBB\xBF")) line.remove_prefix(3);
    if (!Trimmed(line).empty()) return true;
  }
  return false;
}

std::string CycleIn(std::string_view line) {
  constexpr std::string_view words = "data cycle ";
  const std::size_t at = line.find(words);
  if (at == std::string_view::npos) return {};
  line.remove_prefix(at + words.size());
  const std::size_t end = line.find_first_not_of("0123456789.");
  line = line.substr(0, end);
  while (!line.empty() && line.back() == '.')
    line.remove_suffix(1);
  return std::string(line);
}

}  // namespace

SourceHead ReadSourceHead(LineReader& lines, int lowestVersion, int highestVersion) {
  std::string_view line;
  bool found = NextWithText(lines, line);
  // The line with the kind of line ends; some files lack it.
  if (found && (Trimmed(line) == "I" || Trimmed(line) == "A")) found = NextWithText(lines, line);
  const LineFields fields(found ? line : std::string_view{});
  if (!fields.Whole(0) || !AsciiUpper(fields[1]).starts_with("VERSION")) {
    throw BuildError(lines.Name() + ": does not begin with the format version of a navigation data file");
  }
  SourceHead head{*fields.Whole(0), CycleIn(line)};
  if (head.version < lowestVersion || head.version > highestVersion) {
    throw BuildError(lines.Name() + ": format version " + std::to_string(head.version) + " is not among " +
                     std::to_string(lowestVersion) + " to " + std::to_string(highestVersion));
  }
  return head;
}
