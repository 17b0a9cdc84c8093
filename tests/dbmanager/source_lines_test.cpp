#include "dbmanager/source_lines.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include "dbmanager/source_error.h"
#include "tests/temporary_folder.h"

namespace {

std::vector<std::string> AllLines(LineReader lines) {
  std::vector<std::string> all;
  for (std::string_view line; lines.Next(line);)
    all.emplace_back(line);
  return all;
}

using Lines = std::vector<std::string>;

void WriteGzip(const std::filesystem::path& path, const std::string& text) {
  gzFile file = gzopen(path.c_str(), "wb9");
  ASSERT_NE(file, nullptr);
  gzwrite(file, text.data(), static_cast<unsigned>(text.size()));
  gzclose(file);
}

// Text that compresses badly, so that its packed form has many blocks to cut.
std::string Noise(std::size_t lines) {
  std::string text;
  unsigned value = 1;
  for (std::size_t i = 0; i < lines; ++i) {
    for (int k = 0; k < 60; ++k) {
      value = value * 1664525u + 1013904223u;
      text += static_cast<char>('!' + (value >> 24) % 90);
    }
    text += '\n';
  }
  return text;
}

TEST(LineReader, TakesEveryLineEnd) {
  EXPECT_EQ(AllLines(LineReader("x", "a\r\nb\n\nc")), (Lines{"a", "b", "", "c"}));
  EXPECT_EQ(AllLines(LineReader("x", "")), Lines{});
  EXPECT_EQ(AllLines(LineReader("x", "\n")), Lines{""});
}

TEST(LineReader, ReadsPackedAndPlainFilesAlike) {
  const TemporaryFolder folder;
  const std::string text = Noise(40000);  // more than one buffer
  folder.Write("plain.dat", text);
  WriteGzip(folder.Path() / "packed.dat.gz", text);
  const Lines plain = AllLines(LineReader(folder.Path() / "plain.dat"));
  EXPECT_EQ(plain.size(), 40000u);
  EXPECT_EQ(plain, AllLines(LineReader(folder.Path() / "packed.dat.gz")));
  EXPECT_EQ(ReadWholeSource(folder.Path() / "packed.dat.gz"), text);
}

TEST(LineReader, SaysThatAPackedFileIsCutOffOrDamaged) {
  const TemporaryFolder folder;
  WriteGzip(folder.Path() / "whole.gz", Noise(3000));
  const std::string whole = folder.Read("whole.gz");
  std::string damaged = whole;
  for (std::size_t i = 0; i < 40; ++i)
    damaged[whole.size() / 2 + i] = '\xFF';
  folder.Write("damaged.gz", damaged);
  EXPECT_THROW(AllLines(LineReader(folder.Path() / "damaged.gz")), BuildError);
  for (const std::size_t missing : {std::size_t{1}, std::size_t{9}, whole.size() / 2}) {
    folder.Write("cut.gz", whole.substr(0, whole.size() - missing));
    EXPECT_THROW(AllLines(LineReader(folder.Path() / "cut.gz")), BuildError) << missing;
    EXPECT_THROW(ReadWholeSource(folder.Path() / "cut.gz"), BuildError) << missing;
  }
  EXPECT_THROW(LineReader(folder.Path() / "none.dat"), BuildError);
  EXPECT_THROW(LineReader(folder.Path()), BuildError);
}

TEST(LineReader, CutsEndlessLinesAndGoesOnBehindThem) {
  const TemporaryFolder folder;
  const std::string text = "first\n" + std::string(3 * LineReader::longestLine, 'x') + "\nthird\n" +
                           std::string(LineReader::longestLine + 5, 'y');
  folder.Write("long.dat", text);
  for (const bool inMemory : {true, false}) {
    LineReader lines = inMemory ? LineReader("long.dat", text) : LineReader(folder.Path() / "long.dat");
    const Lines all = AllLines(std::move(lines));
    ASSERT_EQ(all.size(), 4u) << inMemory;
    EXPECT_EQ(all[1], std::string(LineReader::longestLine, 'x'));
    EXPECT_EQ(all[2], "third");
    EXPECT_EQ(all[3], std::string(LineReader::longestLine, 'y'));
  }
}

TEST(LineFields, SplitsAtBlanksAndKeepsTheRest) {
  const LineFields fields(" 3\t 57.1  name of it  ");
  EXPECT_EQ(fields.Count(), 5u);
  EXPECT_EQ(fields.From(2), "name of it");
  EXPECT_EQ(fields.Whole(0), 3);
  EXPECT_EQ(fields.Number(1), 57.1);
  EXPECT_EQ(fields.Number(2), std::nullopt);
  EXPECT_EQ(fields[9], "");
  EXPECT_EQ(LineFields(std::string(200, 'a') + std::string(99, ' ')).Count(), 1u);
}

TEST(ParseNumber, TakesWholeFiniteNumbersOnly) {
  EXPECT_EQ(ParseNumber("-077.5"), -77.5);
  EXPECT_EQ(ParseNumber("+1"), 1);
  for (const char* text : {"", "+", "1x", "nan", "inf", "1e999", "12 "})
    EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
  EXPECT_FALSE(ParsePosition(LineFields("90.1 0"), 0));
  EXPECT_FALSE(ParsePosition(LineFields("0 -180.1"), 0));
  EXPECT_TRUE(ParsePosition(LineFields("-90 180"), 0));
}

TEST(CodePageOf, TakesUtf8OrElseLatin1) {
  EXPECT_EQ(CodePageOf("Z\xC3\xBCrich"), "Z\xFCrich");
  EXPECT_EQ(CodePageOf("Z\xFCrich"), "Z\xFCrich");
  EXPECT_EQ(CodePageOf(" a\tb\x01 "), "a b");
}

TEST(ReadSourceHead, NeedsAKnownFormatVersion) {
  struct Case {
    const char* text;
    int version;  // 0: refused
    const char* cycle;
  };
  for (const Case& c :
       {Case{"I\r\n810 Version - data cycle 2013.10, build", 810, "2013.10"},
        Case{"A\n1100 Version - data cycle 1801, build 2", 1100, "1801"},
        Case{"\n810 Version - metadata", 810, ""}, Case{"\xEF\xBB\xBFI\n1200 Generated", 0, ""},
        Case{"", 0, ""}, Case{"<html>\n", 0, ""}, Case{"I\n740 Version - data cycle 2009.01", 0, ""},
        Case{"I\n1300 Version - data cycle 2409", 0, ""}}) {
    LineReader lines("nav.dat", c.text);
    if (c.version == 0) {
      EXPECT_THROW(ReadSourceHead(lines, 810, 1200), BuildError) << c.text;
    } else {
      const SourceHead head = ReadSourceHead(lines, 810, 1200);
      EXPECT_EQ(head.version, c.version);
      EXPECT_EQ(head.cycle, c.cycle);
    }
  }
}

}  // namespace
