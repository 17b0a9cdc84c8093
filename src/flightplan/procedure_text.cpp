#include "flightplan/procedure_text.h"

#include <cmath>
#include <vector>

#include "base/code_page.h"
#include "base/numbers.h"

namespace {

constexpr double straightIn = 30;  // degrees off the runway's heading

std::string Degrees(double angle) {
  const double whole = RoundToEven(angle) % 360;
  return FormatPicture(whole == 0 ? 360 : whole, "000");
}

std::string Track(const ProcedureStep& step) {
  return Degrees(step.Track) + "°";
}

std::string NameOf(const ProcedureStep& step) {
  return CodePageToUtf8(step.Code.View());
}

bool EndsAtAnIntercept(const ProcedureStep& step) {
  return step.Type == "CI" || step.Type == "VI" || step.Type == "CR" || step.Type == "VR";
}

bool EndsOnTheControllersWord(const ProcedureStep& step) {
  return step.Type == "FM" || step.Type == "VM";
}

// The side of the turn into the next step: what it says itself, else by the tracks.
std::string_view SideInto(const ProcedureStep& next, double trackBefore) {
  const char turn = NotesOf(next).turn;
  if (turn != ' ') return turn == 'L' ? "left" : "right";
  return TurnSide(next.Track - trackBefore);
}

// What a leg without a fix leads to.
std::string GoalOf(const ProcedureStep& step) {
  if (!step.Code.Empty()) return NameOf(step);
  if (EndsOnTheControllersWord(step)) return "radar vectors";
  if (step.Altitude > 0) return FormatPicture(step.Altitude, "####0") + " ft";
  return {};
}

std::string AlongTrack(const ProcedureStep& step) {
  const std::string goal = GoalOf(step);
  return "On track " + Track(step) + " " + (goal.empty() ? "" : " to " + goal);
}

std::string Intercept(const std::string& name, double radial, const std::string& towards) {
  return ", intercept " + name + " R-" + Degrees(radial) + " inbound towards " + towards;
}

std::string LegText(const ProcedureStep& step, const ProcedureStep& before, const NavDatabase& database) {
  const StepNotes notes = NotesOf(step);
  const char link = FindStepLink(step, database).letter;
  const bool onRadial = step.Type == "CF" && EndsAtAnIntercept(before);
  if (onRadial && !notes.navaid.empty() && step.Value != 0 && notes.navaid != NameOf(step))
    return Intercept(notes.navaid, step.Value / 10.0, NameOf(step));
  if (link == 'V' && step.Type == "CF") return Intercept(NameOf(step), step.Track + 180.0, NameOf(step));
  switch (link) {
    case 'N':
    case 'V':
      return ", " + Track(step) + " track to " + NameOf(step);
    case 'F':
      return ", " + Track(step) + " toward " + NameOf(step) + " Fix";
    case 'I':
      return ", " + Track(step) + " toward " + NameOf(step) + " Intersection";
    default:
      return ". " + AlongTrack(step);
  }
}

bool BeginsAtDme(const ProcedureStep& step) {
  return step.Dme > 0 && !NotesOf(step).navaid.empty();
}

std::string CrossingText(const ProcedureStep& first) {
  return "Climb straight ahead until crossing " + NotesOf(first).navaid +
         (first.Value != 0 ? " R-" + Degrees(first.Value / 10.0) : "") + " (" +
         FormatPicture(first.Dme, "##0.0") + " DME)";
}

}  // namespace

std::string_view TurnSide(double headingChange) {
  return std::remainder(headingChange, 360.0) < 0 ? "left" : "right";
}

StepNotes NotesOf(const ProcedureStep& step) {
  StepNotes notes;
  const std::string text = CodePageToUtf8(step.Text.View());
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(std::min(word.size() + 1, rest.size()));
    if (word == "L" || word == "R")
      notes.turn = word.front();
    else if (word.starts_with('@'))
      notes.navaid = word.substr(1);
    else if (!word.empty())
      notes.limits += (notes.limits.empty() ? "" : " ") + std::string(word);
  }
  return notes;
}

std::string DepartureText(const SidStarEntry& entry, const NavDatabase& database, SentenceStart start) {
  const auto& steps = entry.Steps;
  if (steps.empty()) return {};
  const bool atDme = BeginsAtDme(steps[0]);
  std::string text = atDme ? CrossingText(steps[0]) : AlongTrack(steps[0]);
  for (std::size_t i = 1; i < steps.size(); ++i) {
    const bool turnsAtDme = i == 1 && atDme;
    if (turnsAtDme || NotesOf(steps[i]).turn != ' ')
      text += ", turn " + std::string(SideInto(steps[i], steps[i - 1].Track));
    text += LegText(steps[i], steps[i - 1], database);
  }
  if (start == SentenceStart::small) text.front() = AsciiLower(text.front());
  return text;
}

std::string ArrivalText(const SidStarEntry& entry, const std::optional<LandingRunway>& runway) {
  struct Leg {
    std::string fix;
    const ProcedureStep* step;
  };
  std::vector<Leg> legs;
  std::string fix;
  for (const ProcedureStep& step : entry.Steps) {
    const bool hold = step.Type == "HA" || step.Type == "HF" || step.Type == "HM";
    if (!fix.empty() && !hold) legs.push_back({fix, &step});
    if (!step.Code.Empty()) fix = NameOf(step);
  }
  std::string text;
  for (std::size_t i = 0; i < legs.size(); ++i) {
    const ProcedureStep& step = *legs[i].step;
    text += (i == 0 ? "leave " : ", leave ") + legs[i].fix + " heading " + Track(step) + ";";
    if (i + 1 == legs.size()) break;
    text += " after " + std::to_string(RoundToEven(step.Distance)) + "nm  turn " +
            std::string(SideInto(*legs[i + 1].step, step.Track));
  }
  if (!legs.empty()) text += runway && runway->hasIls ? " until intercepting localizer" : " to final fix ";
  const bool aligned =
      runway && (legs.empty() || std::abs(std::remainder(
                                     static_cast<double>(legs.back().step->Track) - runway->magneticHeading,
                                     360.0)) <= straightIn);
  if (aligned) text += (text.empty() ? "" : ". ") + ("Fly straight in Rwy " + runway->id);
  return text;
}
