#include "map/ils_layer.h"

#include <array>

#include "base/code_page.h"
#include "base/numbers.h"
#include "map/range_steps.h"
#include "map/rows_in_view.h"
#include "map/symbol_label.h"

namespace {

constexpr std::int16_t featherRange = 200;
constexpr std::int16_t filledRange = 50;
constexpr std::int16_t labelRange = 100;
constexpr std::int16_t shortLabelRange = 75;  // beyond, the label is short
constexpr float labelDistance = 100;
constexpr float steepestGlide = 20;  // degrees; above, the angle means none

constexpr std::array<RangeStep, 6> featherOpacity = {
    {{10, 0.9F}, {50, 0.75F}, {75, 0.6F}, {100, 0.45F}, {150, 0.35F}, {200, 0.28F}}};
constexpr std::array<RangeStep, 4> labelOpacity = {{{30, 1}, {50, 0.9F}, {75, 0.75F}, {100, 0.6F}}};

void DrawIls(const MapPaint& paint, const IlsRec& ils, float variation, bool selected) {
  clsNavaid& symbol = paint.navaid;
  DrawSurface& surface = paint.surface;
  symbol.sngCenterX = static_cast<float>(paint.projection.LonToX(ils.sngLon));
  symbol.sngCenterY = static_cast<float>(paint.projection.LatToY(ils.sngLat));
  symbol.sngCourse = ils.sngCourse;
  symbol.sngLength = static_cast<float>(paint.view.MapScale / 7000.0 * 1000);
  symbol.blnILSType = IsFullIls(ils);
  symbol.strCode.clear();  // the label goes through the declutter grid
  symbol.strRwyID.clear();
  symbol.lngColor = selected ? paint.colors.HILITE : paint.colors.ILS;
  surface.DrawWidth = 1;
  surface.FillStyle = paint.RangeNM() <= filledRange ? FillStyleKind::solid : FillStyleKind::transparent;
  surface.Opacity = selected ? 1 : ValueAt(featherOpacity, paint.RangeNM());
  symbol.DrawAsILS();
  surface.FillStyle = FillStyleKind::transparent;
  const std::string label = IlsLabel(ils, variation, paint.switches, paint.RangeNM());
  if (label.empty()) return;
  surface.Opacity = selected ? 1 : ValueAt(labelOpacity, paint.RangeNM());
  surface.ForeColor = symbol.lngColor;
  surface.FontBold = false;
  surface.FontSize = LabelPoints(paint.settings, 7.5F);
  surface.TextHalo = true;
  const SurfacePoint end = symbol.ILSEnd();
  const bool leftOfEnd = ils.sngCourse < 180;
  const std::string_view first = FirstLine(label);
  const float x = leftOfEnd ? end.x - labelDistance - surface.TextWidth(first) : end.x + labelDistance;
  PrintLabelLines(surface, paint.labels.PlaceLabel(x, end.y, first, LabelKind::ils), label,
                  leftOfEnd ? LineAlign::right : LineAlign::left);
}

}  // namespace

bool IsFullIls(const IlsRec& ils) {
  return ils.sngILSGlideAngle > 0 && ils.sngILSGlideAngle <= steepestGlide;
}

std::string IlsLabel(const IlsRec& ils, float variation, const MapSwitches& switches, std::int16_t rangeNM) {
  std::string label;
  if (rangeNM > labelRange) return label;
  const bool whole = rangeNM <= shortLabelRange;
  const std::string frequency = FormatPicture(ils.sngFrequency, "000.00");
  if (switches.btnIcao) {
    std::string name = CodePageToUtf8(ils.strCode.View());
    if (whole && !ils.strName.Empty()) name += ' ' + CodePageToUtf8(ils.strName.View());
    AppendLine(label, name);
  }
  if (switches.btnFreq) {
    const double course = NormalizeDeg(static_cast<double>(ils.sngCourse) - variation);
    AppendLine(label, whole ? FormatPicture(course, "000") + " / " + frequency : frequency);
  }
  return label;
}

void DrawIlsOf(const MapPaint& paint, const AirportRec& airport) {
  if (!paint.switches.mnuILS || paint.RangeNM() > featherRange) return;
  const std::span<const IlsRec> rows = paint.database.Ils(airport);
  for (std::size_t i = 0; i < rows.size(); ++i)
    DrawIls(paint, rows[i], airport.sngMagVar,
            paint.selection.Holds(SelectedObject::ils, static_cast<std::int32_t>(airport.firstIls + i)));
}

void DrawPendingIls(const MapPaint& paint) {
  const auto behindTable = static_cast<std::int32_t>(paint.database.ils.size());
  for (const std::int32_t row :
       RowsInView(paint.view, paint.database.pendingIlsByPlace, paint.database.pendingIls, navaidMargin)) {
    const IlsRec& ils = paint.database.pendingIls[static_cast<std::size_t>(row)];
    DrawIls(paint, ils, ils.sngMagVar, paint.selection.Holds(SelectedObject::ils, behindTable + row));
  }
}
