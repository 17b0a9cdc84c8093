#include "dbmanager/magnetic_model.h"

#include <chrono>
#include <cmath>
#include <numbers>

#include "base/fixed_text.h"
#include "dbmanager/source_error.h"

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double sphereKm = 6371.2;     // geomagnetic reference radius
constexpr double equatorKm = 6378.137;  // WGS 84 semi-major axis
constexpr double flattening = 1 / 298.257223563;

// Schmidt semi-normalised associated Legendre functions of sin(latitude) and
// their derivatives by latitude, up to the model's degree.
struct Legendre {
  static constexpr int top = MagneticModel::degrees;
  double p[top + 1][top + 1] = {};
  double slope[top + 1][top + 1] = {};

  Legendre(double sinLat, double cosLat) {
    p[0][0] = 1;
    for (int n = 1; n <= top; ++n) {
      for (int m = 0; m <= n; ++m)
        Fill(n, m, sinLat, cosLat);
    }
  }

  void Fill(int n, int m, double s, double c) {
    if (n == m) {
      const double factor = n == 1 ? 1 : std::sqrt(1 - 1.0 / (2 * n));
      p[n][m] = factor * c * p[n - 1][m - 1];
      slope[n][m] = factor * (c * slope[n - 1][m - 1] - s * p[n - 1][m - 1]);
      return;
    }
    const double root = std::sqrt(double(n * n - m * m));
    const double first = (2 * n - 1) / root;
    const double second = n - 1 > m ? std::sqrt(double((n - 1) * (n - 1) - m * m)) / root : 0;
    const double before = n - 1 > m ? p[n - 2][m] : 0;
    const double slopeBefore = n - 1 > m ? slope[n - 2][m] : 0;
    p[n][m] = first * s * p[n - 1][m] - second * before;
    slope[n][m] = first * (c * p[n - 1][m] + s * slope[n - 1][m]) - second * slopeBefore;
  }
};

}  // namespace

MagneticModel MagneticModel::Read(LineReader& lines) {
  MagneticModel model;
  std::string_view line;
  while (lines.Next(line)) {
    const auto fail = [&](const char* reason) {
      throw BuildError(lines.Name() + ", line " + std::to_string(lines.LineNumber()) + ": " + reason);
    };
    if (Trimmed(line).empty()) continue;
    if (Trimmed(line).front() == '#') {
      if (const std::size_t at = line.find("epoch "); at != std::string_view::npos) {
        std::string_view text = line.substr(at + 6);
        model.epoch =
            ParseNumber(text.substr(0, text.find_first_not_of("0123456789."))).value_or(model.epoch);
      }
      continue;
    }
    const LineFields fields(line);
    const int n = fields.Whole(0).value_or(0), m = fields.Whole(1).value_or(-1);
    if (n < 1 || n > degrees || m < 0 || m > n) fail("degree and order are outside the model");
    Coefficients& entry = model.coefficients[Index(n, m)];
    if (entry.known) fail("the coefficient is there twice");
    const auto g = fields.Number(2), h = fields.Number(3), gChange = fields.Number(4),
               hChange = fields.Number(5);
    if (!g || !h || !gChange || !hChange) fail("a coefficient is no number");
    entry = {*g, *h, *gChange, *hChange, true};
  }
  for (std::size_t i = 1; i < model.coefficients.size(); ++i) {
    if (!model.coefficients[i].known) throw BuildError(lines.Name() + ": coefficients are missing");
  }
  return model;
}

double MagneticModel::Declination(SourcePosition position, double year) const {
  // A hair beside the pole itself, so that east keeps a direction.
  const double lat = std::min(std::max(position.lat, -89.9999), 89.9999) * degree;
  const double lon = position.lon * degree;

  // Geodetic to geocentric at height 0.
  const double eccentricity2 = flattening * (2 - flattening);
  const double normalKm = equatorKm / std::sqrt(1 - eccentricity2 * std::sin(lat) * std::sin(lat));
  const double acrossKm = normalKm * std::cos(lat);
  const double alongKm = normalKm * (1 - eccentricity2) * std::sin(lat);
  const double radiusKm = std::hypot(acrossKm, alongKm);
  const double geocentric = std::asin(alongKm / radiusKm);
  const double sinLat = std::sin(geocentric), cosLat = std::cos(geocentric);

  const Legendre legendre(sinLat, cosLat);
  const double years = year - epoch;
  std::array<double, degrees + 1> cosines{}, sines{};
  for (int m = 0; m <= degrees; ++m) {
    cosines[static_cast<std::size_t>(m)] = std::cos(m * lon);
    sines[static_cast<std::size_t>(m)] = std::sin(m * lon);
  }
  double north = 0, east = 0, down = 0;
  double power = (sphereKm / radiusKm) * (sphereKm / radiusKm);
  for (int n = 1; n <= degrees; ++n) {
    power *= sphereKm / radiusKm;
    for (int m = 0; m <= n; ++m) {
      const Coefficients& entry = coefficients[Index(n, m)];
      const double g = entry.g + years * entry.gChange, h = entry.h + years * entry.hChange;
      const double c = cosines[static_cast<std::size_t>(m)], s = sines[static_cast<std::size_t>(m)];
      north -= power * (g * c + h * s) * legendre.slope[n][m];
      east += power * m * (g * s - h * c) * legendre.p[n][m] / cosLat;
      down -= power * (n + 1) * (g * c + h * s) * legendre.p[n][m];
    }
  }
  // Back to the geodetic vertical.
  const double tilt = geocentric - lat;
  const double geodeticNorth = north * std::cos(tilt) - down * std::sin(tilt);
  return std::atan2(east, geodeticNorth) / degree;
}

double DecimalYear(int year, int month, int day) {
  using namespace std::chrono;
  const sys_days first = std::chrono::year(year) / January / 1;
  const sys_days next = std::chrono::year(year + 1) / January / 1;
  const sys_days today = std::chrono::year(year) / month / day;
  return year + double((today - first).count()) / double((next - first).count());
}
