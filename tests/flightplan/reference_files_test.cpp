// Every format writes the six plans of plan_cases.h to the byte as the files in
// reference/ say. Those are written by hand from the formats' descriptions, so a
// format is changed in both places or not at all.
#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <fstream>
#include <locale>
#include <memory>
#include <sstream>

#include "flightplan/formats/plan_formats.h"
#include "tests/flightplan/plan_cases.h"

namespace {

std::filesystem::path ReferenceFile(const NamedPlanCase& planCase, const PlanFormatInfo& format) {
  const std::string name =
      std::string(planCase.name) + "." + std::string(format.name) + std::string(format.extension);
  return std::filesystem::path(VELMORA_SOURCE_DIR "/tests/flightplan/reference") / name;
}

// Empty if the texts are equal, else the first line in which they are not.
std::string FirstDifference(const std::string& expected, const std::string& written) {
  std::istringstream expectedLines(expected), writtenLines(written);
  for (int number = 1;; ++number) {
    std::string expectedLine, writtenLine;
    const bool more = static_cast<bool>(std::getline(expectedLines, expectedLine));
    const bool moreWritten = static_cast<bool>(std::getline(writtenLines, writtenLine));
    if (!more && !moreWritten) return expected == written ? "" : "only in the last line's end";
    if (more == moreWritten && expectedLine == writtenLine) continue;
    return "line " + std::to_string(number) + "\n  expected " +
           testing::PrintToString(more ? expectedLine : "(end)") + "\n  written  " +
           testing::PrintToString(moreWritten ? writtenLine : "(end)");
  }
}

struct BuiltCase {
  NamedPlanCase planCase;
  std::unique_ptr<CasePlan> plan;
};

std::vector<BuiltCase> AllCases() {
  std::vector<BuiltCase> cases;
  for (const NamedPlanCase& planCase : planCases)
    cases.push_back({planCase, std::make_unique<CasePlan>(planCase.which)});
  return cases;
}

void CompareAllFiles(const std::vector<BuiltCase>& cases) {
  for (const BuiltCase& built : cases) {
    for (const PlanFormatInfo& format : PlanFormats()) {
      const std::filesystem::path path = ReferenceFile(built.planCase, format);
      std::ifstream file(path, std::ios::binary);
      ASSERT_TRUE(file) << "no reference file " << path.filename();
      const std::string expected(std::istreambuf_iterator<char>(file), {});
      EXPECT_EQ(FirstDifference(expected, format.write(built.plan->Export())), "") << path.filename();
    }
  }
}

// Numbers as 1.234,5.
class CommaNumbers : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

class GermanNumbers {
 public:
  GermanNumbers() : before(std::locale::global(std::locale(std::locale::classic(), new CommaNumbers))) {
    // Where the system knows the language, the C library writes commas too.
    std::setlocale(LC_ALL, "de_DE.UTF-8");
  }
  ~GermanNumbers() {
    std::locale::global(before);
    std::setlocale(LC_ALL, "C");
  }
  GermanNumbers(const GermanNumbers&) = delete;
  GermanNumbers& operator=(const GermanNumbers&) = delete;

 private:
  std::locale before;
};

TEST(ReferenceFiles, EveryFormatWritesEveryPlanToTheByte) {
  CompareAllFiles(AllCases());
}

TEST(ReferenceFiles, CommasOfTheLocaleChangeNothing) {
  const std::vector<BuiltCase> cases = AllCases();  // their drawing is read with points
  const GermanNumbers german;
  std::ostringstream proof;
  proof << 1234.5;
  ASSERT_EQ(proof.str(), "1.234,5");
  CompareAllFiles(cases);
}

}  // namespace
