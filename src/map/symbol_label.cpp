#include "map/symbol_label.h"

#include <algorithm>
#include <array>

void AppendLine(std::string& label, std::string_view line) {
  if (line.empty()) return;
  if (!label.empty()) label += '\n';
  label += line;
}

std::string_view FirstLine(std::string_view label) {
  return label.substr(0, label.find('\n'));
}

void PrintLabelLines(DrawSurface& surface, SurfacePoint place, std::string_view label, LineAlign align) {
  const bool single = label.find('\n') == std::string_view::npos;
  const float firstWidth = surface.TextWidth(FirstLine(label));
  const float height = surface.TextHeight(label);
  float y = place.y;
  while (!label.empty()) {
    const std::string_view line = FirstLine(label);
    label.remove_prefix(std::min(line.size() + 1, label.size()));
    const float width = single ? firstWidth : surface.TextWidth(line);
    const float spare = firstWidth - width;
    const float x = place.x + (align == LineAlign::left ? 0 : align == LineAlign::right ? spare : spare / 2);
    const bool onPage =
        x < surface.ScaleWidth() && x + width > 0 && y < surface.ScaleHeight() && y + height > 0;
    if (onPage) {
      surface.CurrentX = x;
      surface.CurrentY = y;
      surface.Print(line);
    }
    y += height;
  }
}

void PlaceAndPrint(DrawSurface& surface, modDeclutter& labels, float middle, float top,
                   std::string_view label, LabelKind kind) {
  if (label.empty()) return;
  const std::string_view first = FirstLine(label);
  PrintLabelLines(surface, labels.PlaceLabel(middle - surface.TextWidth(first) / 2, top, first, kind), label);
}

float LabelPoints(const Settings& settings, float points) {
  constexpr std::array<float, 3> scales = {1, 1.15F, 1.35F};
  return points * scales[std::min<std::size_t>(settings.FONTSIZE, scales.size() - 1)];
}
