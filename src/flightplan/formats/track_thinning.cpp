#include "flightplan/formats/track_thinning.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <queue>

namespace {

struct Offset {
  double east = 0;
  double north = 0;
};

// NM on a flat earth around from, the shorter way round.
Offset OffsetTo(Position from, Position to) {
  const double east = std::remainder(static_cast<double>(to.lon) - from.lon, 360.0);
  const double north = static_cast<double>(to.lat) - from.lat;
  return {east * 60 * std::cos(DegToRad(from.lat)), north * 60};
}

// From the middle one to the line between the others.
double Deviation(Position first, Position middle, Position last) {
  const Offset line = OffsetTo(first, last);
  const Offset point = OffsetTo(first, middle);
  const double square = line.east * line.east + line.north * line.north;
  const double along = square > 0 ? (point.east * line.east + point.north * line.north) / square : 0;
  const double share = std::clamp(along, 0.0, 1.0);
  return std::hypot(point.east - share * line.east, point.north - share * line.north);
}

class Thinning {
 public:
  explicit Thinning(std::span<const Position> track)
      : track(track), before(track.size()), behind(track.size()), deviation(track.size(), -1) {
    for (std::size_t i = 0; i < track.size(); ++i) {
      before[i] = i - 1;
      behind[i] = i + 1;
    }
    for (std::size_t i = 1; i + 1 < track.size(); ++i)
      Measure(i);
  }

  std::vector<std::size_t> Run(std::size_t most) {
    std::size_t left = track.size();
    while (!queue.empty()) {
      const Entry next = queue.top();
      queue.pop();
      if (next.deviation != deviation[next.point]) continue;  // measured anew since
      if (left <= most && next.deviation > straightEnough) break;
      Remove(next.point);
      --left;
    }
    std::vector<std::size_t> stay;
    for (std::size_t i = 0; i < track.size(); i = behind[i])
      stay.push_back(i);
    return stay;
  }

 private:
  struct Entry {
    double deviation = 0;
    std::size_t point = 0;
    bool operator>(const Entry& other) const {
      return deviation != other.deviation ? deviation > other.deviation : point > other.point;
    }
  };

  void Measure(std::size_t i) {
    deviation[i] = Deviation(track[before[i]], track[i], track[behind[i]]);
    queue.push({deviation[i], i});
  }

  void Remove(std::size_t i) {
    const std::size_t first = before[i];
    const std::size_t last = behind[i];
    deviation[i] = -1;
    behind[first] = last;
    before[last] = first;
    if (first > 0) Measure(first);
    if (last + 1 < track.size()) Measure(last);
  }

  std::span<const Position> track;
  std::vector<std::size_t> before, behind;
  std::vector<double> deviation;  // -1: an end, or gone
  std::priority_queue<Entry, std::vector<Entry>, std::greater<>> queue;
};

}  // namespace

std::vector<std::size_t> ThinnedTrack(std::span<const Position> track, std::size_t most) {
  return Thinning(track).Run(most);
}
