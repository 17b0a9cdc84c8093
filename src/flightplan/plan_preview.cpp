#include "flightplan/plan_preview.h"

#include <vector>

#include "base/code_page.h"
#include "base/fixed_text.h"
#include "flightplan/plan_reader.h"
#include "flightplan/route_string.h"

namespace {

// Keeps what the pilot would be told.
class KeptMessages : public MessageBox {
 public:
  void Show(std::string_view text, MessageIcon) override { texts.emplace_back(text); }
  bool AskYesNo(std::string_view, MessageIcon) override { return false; }

  std::vector<std::string> texts;
};

std::string AirportText(const NavDatabase& database, std::int32_t row) {
  const AirportRec& airport = database.airports.at(static_cast<std::size_t>(row));
  return CodePageToUtf8(airport.strCode.Text() + " " + airport.strName.Text());
}

std::string FiguresOf(const FlightPlan& plan) {
  const int waypoints = plan.RowCount() - 2;
  std::string text = std::to_string(plan.TotalDistance) + " NM, " +
                     (waypoints == 1 ? std::string("1 waypoint") : std::to_string(waypoints) + " waypoints") +
                     ", FL " + std::to_string(plan.CruiseFL) + ", " + plan.PlanType;
  if (plan.MissingWaypoints) text += ". Some waypoints are missing in current database!";
  return text;
}

}  // namespace

PlanPreview PreviewPlan(const PlanContext& context, std::string_view text) {
  KeptMessages told;
  const PlanContext quiet{context.database, context.aircraft, told, context.FAFDIST};
  FlightPlan plan;
  PlanPreview preview;
  preview.valid = ReadPlan(plan, quiet, text).valid && plan.RowCount() >= 2;
  if (!preview.valid) {
    if (!told.texts.empty()) preview.title = Trimmed(told.texts.front());
    return preview;
  }
  preview.title = AirportText(context.database, plan.DepartureIndex) + " \u2013 " +
                  AirportText(context.database, plan.DestinationIndex);
  preview.route = RouteStringFromPlan(plan);
  preview.figures = FiguresOf(plan);
  return preview;
}
