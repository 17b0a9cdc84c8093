// Gives a surface its style back at the end of a block.
#pragma once

#include "platform/draw_surface.h"

class StyleKeeper {
 public:
  explicit StyleKeeper(DrawSurface& surface) : surface(surface), style(surface) {}
  ~StyleKeeper() { static_cast<SurfaceStyle&>(surface) = style; }
  const SurfaceStyle& Style() const { return style; }

  StyleKeeper(const StyleKeeper&) = delete;
  StyleKeeper& operator=(const StyleKeeper&) = delete;

 private:
  DrawSurface& surface;
  SurfaceStyle style;
};
