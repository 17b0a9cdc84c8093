#include "navdata/ils_positions.h"

#include "navdata/nav_database.h"

namespace {

bool Names(const FixedText<5>& runwaysCode, std::string_view ilsCode) {
  return AsciiUpper(runwaysCode.View()) == ilsCode;
}

void MoveToThreshold(IlsRec& ils, const RunwayRec& runway) {
  ils.lngRwyLength = runway.intLength;
  const auto length = static_cast<float>(FeetToNM(runway.intLength));
  const Position threshold = FlatOffset(ils.sngLat, ils.sngLon, ils.sngCourse, length);
  ils.sngLat = threshold.lat;
  ils.sngLon = threshold.lon;
}

}  // namespace

bool ReassignILSCoords(NavDatabase& database) {
  for (const AirportRec& airport : database.airports) {
    const auto allIls =
        std::span(database.ils).subspan(airport.firstIls, static_cast<std::size_t>(airport.lngIls));
    for (IlsRec& ils : allIls) {
      const std::string_view code = ils.strCode.View();
      if (code.empty()) continue;
      for (const RunwayRec& runway : database.Runways(airport)) {
        if (Names(runway.strIlsCode, code) || Names(runway.strIlsCodeRecip, code))
          MoveToThreshold(ils, runway);
      }
    }
  }
  return true;
}
