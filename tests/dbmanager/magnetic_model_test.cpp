#include "dbmanager/magnetic_model.h"

#include <gtest/gtest.h>

#include <cmath>

#include "dbmanager/small_files.h"
#include "dbmanager/source_error.h"
#include "navdata/magnetic_variation.h"

namespace {

std::string ModelText() {
  return ReadWholeSource(std::filesystem::path(VELMORA_SOURCE_DIR) / "data/wmm2025.txt");
}

MagneticModel Read(const std::string& text) {
  LineReader lines("wmm.txt", text);
  return MagneticModel::Read(lines);
}

// Test values published with the model (height 0 km), two decimals.
TEST(MagneticModel, GivesThePublishedTestValues) {
  const MagneticModel model = Read(ModelText());
  struct Case {
    double year, lat, lon, declination;
  };
  for (const Case& c :
       {Case{2025.0, 80, 0, 1.28}, Case{2025.0, 0, 120, -0.16}, Case{2025.0, -80, 240, 68.78},
        Case{2027.5, 80, 0, 2.59}, Case{2027.5, 0, 120, -0.24}, Case{2027.5, -80, 240, 68.49}}) {
    EXPECT_NEAR(model.Declination({c.lat, c.lon}, c.year), c.declination, 0.0051) << c.year << " " << c.lat;
  }
}

// From an independent implementation of the model, six digits, 2026-11-22.
TEST(MagneticModel, AgreesWithAnIndependentImplementation) {
  const MagneticModel model = Read(ModelText());
  const double year = DecimalYear(2026, 11, 22);
  struct Case {
    double lat, lon, declination;
  };
  for (const Case& c : {Case{47, -55, -16.515601}, Case{64, -160, 9.659965}, Case{-59, 179, 46.618875},
                        Case{25, 105, -2.046254}}) {
    EXPECT_NEAR(model.Declination({c.lat, c.lon}, year), c.declination, 1e-4) << c.lat;
  }
}

TEST(MagneticModel, GridHoldsWholeDegreesWithThePoles) {
  const MagneticModel model = Read(ModelText());
  const auto bytes = MakeVariationGrid(model, 2026.5, [] { return true; });
  ASSERT_EQ(bytes.size(), 360u * 181u * 2u);
  const auto grid = MagneticVariationGrid::FromBytes(bytes);
  for (const auto& [lat, lon] :
       {std::pair{50, 8}, std::pair{-34, -59}, std::pair{-90, 0}, std::pair{90, -1}}) {
    const double exact = model.Declination({double(lat), double(lon)}, 2026.5);
    EXPECT_NEAR(grid.AtWholeDegrees(lat, lon), exact, 0.003) << lat << " " << lon;
    EXPECT_TRUE(std::isfinite(exact));
  }
}

TEST(MagneticModel, RefusesABrokenModel) {
  const std::string text = ModelText();
  EXPECT_THROW(Read(""), BuildError);
  EXPECT_THROW(Read(text.substr(0, text.rfind("12 12"))), BuildError);
  EXPECT_THROW(Read(text + "1 1 2 3 4 5\n"), BuildError);
  EXPECT_THROW(Read(text + "13 1 2 3 4 5\n"), BuildError);
  EXPECT_THROW(Read("1 0 x 0 0 0\n" + text), BuildError);
}

TEST(DecimalYear, CountsDays) {
  EXPECT_DOUBLE_EQ(DecimalYear(2025, 1, 1), 2025);
  EXPECT_DOUBLE_EQ(DecimalYear(2025, 12, 31), 2025 + 364.0 / 365);
  EXPECT_DOUBLE_EQ(DecimalYear(2028, 12, 31), 2028 + 365.0 / 366);
}

}  // namespace
