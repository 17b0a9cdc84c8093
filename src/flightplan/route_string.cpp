#include "flightplan/route_string.h"

namespace {

class RouteWriter {
 public:
  explicit RouteWriter(const FlightPlan& plan) : plan(plan) {}

  std::string Write() {
    if (plan.RowCount() < 2) return {};
    Add(plan.rows.front().Code.View());
    for (int i = 1; i < plan.DestinationRow(); ++i)
      AddRow(i);
    Add(plan.rows.back().Code.View());
    return PlainRouteText(text);
  }

 private:
  void AddRow(int i) {
    const PlanWaypoint& row = plan.Row(i);
    // Rows of a procedure without a name came with a segment.
    const bool unnamed = (row.Kind == RowKind::sid && plan.SidName.empty()) ||
                         (row.Kind == RowKind::star && plan.StarName.empty());
    if (unnamed) return AddFix(i);
    switch (row.Kind) {
      case RowKind::sid:
        if (!sidNamed) Add(plan.SidName);
        sidNamed = true;
        break;
      case RowKind::star:
        if (!starNamed) {
          if (row.Airway.View().size() > 1) AddFix(i);
          Add(plan.StarName);
        }
        starNamed = true;
        break;
      default:
        AddFix(i);
    }
  }

  // An airway's name stands before its first fix behind the entry; its fixes
  // are passed over up to the one where it ends.
  void AddFix(int i) {
    const PlanWaypoint& row = plan.Row(i);
    if (row.Sym == "Int" && row.HasAirway()) {
      if (plan.Row(i - 1).Airway != row.Airway) Add(row.Airway.View());
      const PlanWaypoint& next = plan.Row(i + 1);
      if (next.Sym == "Int" && next.Airway == row.Airway) return;
    }
    Add(row.Code.View());
  }

  void Add(std::string_view word) {
    if (word.empty()) return;
    if (!text.empty()) text += ' ';
    text += word;
  }

  const FlightPlan& plan;
  std::string text;
  bool sidNamed = false;
  bool starNamed = false;
};

}  // namespace

std::string PlainRouteText(std::string_view text) {
  std::string plain = AsciiUpper(text);
  for (char& c : plain) {
    if (!((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z'))) c = ' ';
  }
  return std::string(Trimmed(plain));
}

std::string RouteStringFromPlan(const FlightPlan& plan) {
  return RouteWriter(plan).Write();
}
