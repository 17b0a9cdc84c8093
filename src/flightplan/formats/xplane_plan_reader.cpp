// X-Plane: the text plans of version 3 and of version 1100 (xplane11_plan.cpp
// has its layout). A row of version 3 has no airway and no header but a count.
#include <algorithm>

#include "base/fixed_text.h"
#include "flightplan/formats/foreign_readers.h"
#include "flightplan/formats/foreign_text.h"

namespace {

PointKind KindOfNumber(std::string_view number) {
  if (number == "1") return PointKind::airport;
  if (number == "2") return PointKind::ndb;
  if (number == "3") return PointKind::vor;
  if (number == "11") return PointKind::intersection;
  return number == "28" || number == "13" ? PointKind::user : PointKind::unknown;
}

bool IsNumber(std::string_view word) {
  return std::all_of(word.begin(), word.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsNoAirway(std::string_view via) {
  constexpr std::string_view words[] = {"ADEP", "ADES", "DEP", "DES", "DRCT"};
  return std::find(std::begin(words), std::end(words), via) != std::end(words);
}

class Reader {
 public:
  ForeignPlan Read(std::string_view text) {
    plan.format = "X-Plane plan";
    for (int line = 1; const std::optional<std::string_view> words = TakeTextLine(text); ++line)
      TakeWords(WordsOf(*words), line);
    if (!sidTransition.empty()) plan.sid += "." + sidTransition;
    if (!starTransition.empty()) plan.star += "." + starTransition;
    return std::move(plan);
  }

 private:
  void TakeWords(const std::vector<std::string_view>& words, int line) {
    if (words.size() < 2) return;  // blank, the first line, or one of version 3's counts
    if (EqualNoCase(words[1], "version")) {
      hasAirways = words[0] == "1100";
      return;
    }
    if (!IsNumber(words[0])) return TakeKey(words[0], words[1]);
    if (words[0] == "0") return;  // an empty slot
    const std::size_t needed = hasAirways ? 6 : 5;
    if (words.size() < needed)
      return plan.problems.Add("line " + std::to_string(line) + " is not complete; it is left out");
    TakePoint(words);
  }

  void TakePoint(const std::vector<std::string_view>& words) {
    const std::size_t behind = hasAirways ? 3 : 2;
    ForeignPoint point;
    point.kind = KindOfNumber(words[0]);
    point.code = words[1];
    if (hasAirways && !IsNoAirway(words[2])) point.airway = words[2];
    if (point.kind != PointKind::airport)
      plan.cruiseFeet = std::max(plan.cruiseFeet, NumberOf(words[behind]).value_or(0));
    point.place = PlaceOf(NumberOf(words[behind + 1]), NumberOf(words[behind + 2]));
    plan.points.push_back(std::move(point));
  }

  void TakeKey(std::string_view key, std::string_view value) {
    if (key == "ADEP" || key == "DEP") plan.departure.code = value;
    if (key == "ADES" || key == "DES") plan.destination.code = value;
    if (key == "DEPRWY") plan.start = value.starts_with("RW") ? value.substr(2) : value;
    if (key == "SID") plan.sid = value;
    if (key == "SIDTRANS") sidTransition = value;
    if (key == "STAR") plan.star = value;
    if (key == "STARTRANS") starTransition = value;
    if (key == "DESRWY") plan.problems.Add("the landing runway " + std::string(value) + " is not taken");
    if (key == "APP") plan.problems.Add("the approach " + std::string(value) + " is not taken");
  }

  ForeignPlan plan;
  std::string sidTransition;
  std::string starTransition;
  bool hasAirways = false;
};

}  // namespace

ForeignPlan ReadXPlanePlan(std::string_view text) {
  return Reader().Read(text);
}
