// The pointer's shape while the program works: the hourglass stands from the
// object's making to its end, also when that end is an exception.
#pragma once

class PointerShape {
 public:
  virtual ~PointerShape() = default;
  virtual void SetHourglass(bool on) = 0;
};

class HourglassWhile {
 public:
  explicit HourglassWhile(PointerShape& pointer) : pointer(pointer) { pointer.SetHourglass(true); }
  ~HourglassWhile() { pointer.SetHourglass(false); }
  HourglassWhile(const HourglassWhile&) = delete;
  HourglassWhile& operator=(const HourglassWhile&) = delete;

 private:
  PointerShape& pointer;
};
