#include "flightplan/formats/foreign_plan.h"

#include "base/code_page.h"
#include "flightplan/formats/foreign_readers.h"
#include "flightplan/formats/foreign_text.h"

namespace {

using TextReader = ForeignPlan (*)(std::string_view);
using XmlReader = ForeignPlan (*)(pugi::xml_node);

struct XmlFormat {
  std::string_view root;
  XmlReader read;
};
constexpr XmlFormat xmlFormats[] = {{"SimBase.Document", ReadSimBasePlan},
                                    {"PropertyList", ReadFlightGearPlan},
                                    {"flight-plan", ReadGarminPlan},
                                    {"gpx", ReadGpxPlan}};

// The first lines with something in them.
std::vector<std::string_view> FirstLines(std::string_view text, std::size_t count) {
  std::vector<std::string_view> lines;
  while (lines.size() < count) {
    const std::optional<std::string_view> line = TakeTextLine(text);
    if (!line) break;
    if (const std::string_view plain = Stripped(*line); !plain.empty()) lines.push_back(plain);
  }
  return lines;
}

bool IsXPlaneVersion(std::string_view line) {
  const auto words = WordsOf(line);
  return words.size() >= 2 && EqualNoCase(words[1], "version") && (words[0] == "3" || words[0] == "1100");
}

// The network clients' files begin with the same line as the simulator's.
bool HasSimulatorKeys(std::string_view text) {
  return text.find("departure_id") != std::string_view::npos ||
         text.find("waypoint.") != std::string_view::npos;
}

TextReader TextReaderFor(std::string_view text) {
  const std::vector<std::string_view> lines = FirstLines(text, 2);
  if (lines.empty()) return nullptr;
  if (EqualNoCase(lines[0], "[SBFlightPlan]")) return ReadSquawkBoxPlan;
  if (EqualNoCase(lines[0], "[flightplan]") && HasSimulatorKeys(text)) return ReadSimulatorPlan;
  const bool isXPlane = (lines[0] == "I" || lines[0] == "A") && lines.size() > 1 && IsXPlaneVersion(lines[1]);
  return isXPlane ? ReadXPlanePlan : nullptr;
}

bool LooksLikeXml(std::string_view text) {
  return text.find('<') < 8;  // behind a byte order mark
}

std::optional<ForeignPlan> ReadXml(std::string_view text) {
  pugi::xml_document document;
  const pugi::xml_parse_result result = document.load_buffer(text.data(), text.size());
  const pugi::xml_node root = document.document_element();
  for (const XmlFormat& format : xmlFormats) {
    if (root.name() != format.root) continue;
    ForeignPlan plan = format.read(root);
    if (!result)
      plan.problems.Add("the file is damaged at byte " + std::to_string(result.offset) + " (" +
                        result.description() + "); what follows is left out");
    return plan;
  }
  return std::nullopt;
}

}  // namespace

std::string OneLine(std::string_view text) {
  constexpr std::size_t longest = 160;
  std::string line(Stripped(text.substr(0, longest)));
  for (char& c : line)
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  while (!line.empty() && !IsValidUtf8(line))  // a character cut in two
    line.pop_back();
  return line;
}

void ImportProblems::Add(std::string_view line) {
  if (lines.size() < most) return lines.push_back(OneLine(line));
  ++more;
}

std::vector<std::string> ImportProblems::Lines() const {
  std::vector<std::string> all = lines;
  if (more > 0) all.push_back("and " + std::to_string(more) + " more");
  return all;
}

std::optional<ForeignPlan> ReadForeignPlan(std::string_view text) {
  if (text.size() > longestPlanFile) return std::nullopt;
  if (LooksLikeXml(text)) return ReadXml(text);
  constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  const TextReader read = TextReaderFor(text);
  if (read == nullptr) return std::nullopt;
  return read(IsValidUtf8(text) ? std::string(text) : CodePageToUtf8(text));
}
