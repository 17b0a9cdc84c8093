// Route segments as text and as files: what was stored comes back, what is
// broken is told, what others have written stays.
#include "flightplan/segment_file.h"

#include <gtest/gtest.h>

#include "flightplan/segment_folder.h"
#include "tests/temporary_folder.h"

namespace {

const std::string twoRows =
    "WP=Int,TABUM,TABUM,50.2521,8.6405,0.00,17.1234,2.310,1,4711,UL607,18000,46000\r\n"
    "WP=VOR,FFM,Frankfurt Caf\xe9,-50.0500,-179.9999,114.20,0.0000,-2.000,3,-1\r\n";

RouteSegment TwoRows(const std::string& runway, const std::string& description) {
  RouteSegment segment{runway, description, std::vector<PlanWaypoint>(2)};
  PlanWaypoint& tabum = segment.rows[0];
  tabum.Sym = "Int";
  tabum.Code = "TABUM";
  tabum.Name = "TABUM";
  tabum.Lat = 50.2521F;
  tabum.Lon = 8.6405F;
  tabum.Course = 17.1234F;
  tabum.MagVar = 2.31F;
  tabum.DbIndex = 4711;
  tabum.Airway = "UL607";
  tabum.AirwayMinAlt = 18000;
  tabum.AirwayMaxAlt = 46000;
  PlanWaypoint& ffm = segment.rows[1];
  ffm.Sym = "VOR";
  ffm.Code = "FFM";
  ffm.Name = "Frankfurt Caf\xe9";
  ffm.Lat = -50.05F;
  ffm.Lon = -179.9999F;
  ffm.Freq = 114.2F;
  ffm.MagVar = -2;
  ffm.Kind = RowKind::sid;
  return segment;
}

void ExpectSame(const RouteSegment& read, const RouteSegment& written) {
  EXPECT_EQ(read.runway, written.runway);
  EXPECT_EQ(read.description, written.description);
  EXPECT_EQ(read.rows, written.rows);
}

TEST(SegmentFile, HasOneLayoutEach) {
  EXPECT_EQ(WriteSegment(SegmentType::enroute, TwoRows("07C", "Caf\xc3\xa9, north")),
            "[VLM Segment]\r\nCaf\xe9, north\r\n" + twoRows);
  EXPECT_EQ(WriteSegment(SegmentType::departure, TwoRows("07C", "North")),
            "[BEGIN]\r\nRwy: 07C\r\nNorth\r\n" + twoRows);
  EXPECT_EQ(WriteSegment(SegmentType::arrival, TwoRows("", "North")),
            "[BEGIN]\r\nRwy: ANY\r\nNorth\r\n" + twoRows);
}

TEST(SegmentFile, WhatWasWrittenComesBack) {
  for (const char* description :
       {"North, then Caf\xc3\xa9", "[BEGIN]", "[VLM Segment]", "WP=1", "Rwy: 18", "ANY"}) {
    const RouteSegment segment = TwoRows("07C", description);
    const SegmentReading dep =
        ReadSegments(SegmentType::departure, WriteSegment(SegmentType::departure, segment));
    ASSERT_EQ(dep.segments.size(), 1U) << description;
    EXPECT_TRUE(dep.problems.empty());
    ExpectSame(dep.segments[0], segment);
    RouteSegment enroute = segment;
    enroute.runway.clear();
    const SegmentReading enr =
        ReadSegments(SegmentType::enroute, WriteSegment(SegmentType::enroute, enroute));
    ASSERT_EQ(enr.segments.size(), 1U) << description;
    ExpectSame(enr.segments[0], enroute);
  }
  const RouteSegment broken = TwoRows("", "two\r\nlines");
  EXPECT_EQ(
      ReadSegments(SegmentType::arrival, WriteSegment(SegmentType::arrival, broken)).segments[0].description,
      "two  lines");
}

TEST(SegmentFile, BrokenFilesAreToldByLine) {
  struct Case {
    const char* what;
    SegmentType type;
    std::string text;
    std::size_t segments, rows;  // rows: of the last segment
    std::vector<std::string> problems;
  };
  const std::string incomplete = ": the waypoint is not complete; it is left out";
  const Case cases[] = {
      {"empty", SegmentType::enroute, "", 0, 0, {}},
      {"a departure file as enroute",
       SegmentType::enroute,
       "[BEGIN]\r\nRwy: ANY\r\n",
       0,
       0,
       {"line 1: it stands before the first segment; it is left out",
        "line 2: it stands before the first segment; it is left out"}},
      {"cut off in the mark",
       SegmentType::enroute,
       "[VLM Seg",
       0,
       0,
       {"line 1: it stands before the first segment; it is left out"}},
      {"the mark alone", SegmentType::departure, "[BEGIN]", 1, 0, {}},
      {"cut off in a row",
       SegmentType::enroute,
       "[VLM Segment]\nx\n" + twoRows.substr(0, 100),
       1,
       1,
       {"line 4" + incomplete}},
      {"a plan's rows, line feeds alone",
       SegmentType::enroute,
       "[VLM Segment]\nx\n\nWP=7,Fix,A,A,1,2,0,0,0,1,5\nWP=8,Fix,B,B,1,3,0,0,0,1,6,\n",
       1,
       2,
       {}},
      {"no description, any runway without its key",
       SegmentType::arrival,
       "[BEGIN]\rANY\rWP=Fix,A,A,1,2,0,0,0,1,5,V1,-00001,-00001\r",
       1,
       1,
       {}},
      {"a comma in a name",
       SegmentType::enroute,
       "[VLM Segment]\nx\nWP=Fix,A,A,B,1,2,0,0,0,1,5\n",
       1,
       0,
       {"line 3" + incomplete}},
      {"off the earth",
       SegmentType::enroute,
       "[VLM Segment]\nx\nWP=Fix,A,A,91,2,0,0,0,1,5\n",
       1,
       0,
       {"line 3" + incomplete}},
      {"words between",
       SegmentType::departure,
       "[BEGIN]\nRwy: 18\nx\nWP=Fix,A,A,1,2,0,0,0,1,5\nhello\n[BEGIN]\n",
       2,
       0,
       {"line 5: it is no waypoint; it is left out"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const SegmentReading reading = ReadSegments(c.type, c.text);
    EXPECT_EQ(reading.valid, c.segments > 0);
    ASSERT_EQ(reading.segments.size(), c.segments);
    EXPECT_EQ(reading.problems, c.problems);
    if (c.segments > 0) {
      EXPECT_EQ(reading.segments.back().rows.size(), c.rows);
    }
  }
}

struct SegmentFolders : testing::Test {
  bool Save(SegmentType type, const std::string& name, const RouteSegment& segment) {
    return SaveSegment(home, {type, name, name, segment}, &reason);
  }
  TemporaryFolder folder;
  AppFolder home{folder.Path()};
  std::string reason;
};

TEST_F(SegmentFolders, KeepEachTypeInItsPlace) {
  EXPECT_TRUE(SegmentFiles(home, SegmentType::enroute, "").empty()) << "before there are folders";
  ASSERT_TRUE(Save(SegmentType::departure, "EDDF", TwoRows("", "a"))) << reason;
  ASSERT_TRUE(Save(SegmentType::arrival, "EDDF", TwoRows("", "b")));
  ASSERT_TRUE(Save(SegmentType::enroute,
                   "\xc3\x9c"
                   "ber Nord.ENR",
                   TwoRows("", "c")));
  EXPECT_TRUE(std::filesystem::exists(folder.Path() / "Segments/Departures/EDDF.dep"));
  EXPECT_TRUE(std::filesystem::exists(folder.Path() / "Segments/Arrivals/EDDF.arr"));
  EXPECT_TRUE(std::filesystem::exists(folder.Path() / "Segments/Enroute/\xc3\x9c"
                                                      "ber Nord.enr"));
  folder.Write("Segments/Enroute/a.ENR", "");
  folder.Write("Segments/Enroute/note.txt", "");
  EXPECT_EQ(SegmentFiles(home, SegmentType::enroute, "").size(), 2U);
  EXPECT_EQ(SegmentFiles(home, SegmentType::departure, "EDDF").size(), 1U);
  EXPECT_TRUE(SegmentFiles(home, SegmentType::departure, "EDDM").empty());
  EXPECT_TRUE(SegmentFiles(home, SegmentType::departure, "../Arrivals/EDDF").empty());
}

TEST_F(SegmentFolders, AddAndDeleteLeaveTheOthersByteForByte) {
  const std::string foreign = "[BEGIN]\nANY\nby  hand\t\nWP=odd\n; note\n[BEGIN]\nRwy: 18";
  folder.Write("Segments/Departures/EDDF.dep", foreign);
  ASSERT_TRUE(Save(SegmentType::departure, "EDDF", TwoRows("07C", "mine"))) << reason;
  const std::filesystem::path file = folder.Path() / "Segments/Departures/EDDF.dep";
  std::string text = folder.Read(file);
  EXPECT_EQ(text, foreign + "\r\n" + WriteSegment(SegmentType::departure, TwoRows("07C", "mine")));
  SegmentReading reading = ReadSegments(SegmentType::departure, text);
  ASSERT_EQ(reading.segments.size(), 3U);
  EXPECT_FALSE(DeleteSegment(file, text + " ", reading.segments[1], &reason)) << "changed in between";
  EXPECT_EQ(folder.Read(file), text);
  ASSERT_TRUE(DeleteSegment(file, text, reading.segments[1], &reason)) << reason;
  text.erase(reading.segments[1].begin, std::string("[BEGIN]\nRwy: 18\r\n").size());
  EXPECT_EQ(folder.Read(file), text);
  while (std::filesystem::exists(file)) {
    text = folder.Read(file);
    ASSERT_TRUE(DeleteSegment(file, text, ReadSegments(SegmentType::departure, text).segments[0], &reason));
  }
  EXPECT_TRUE(SegmentFiles(home, SegmentType::departure, "EDDF").empty()) << "gone with the last segment";
}

TEST_F(SegmentFolders, RefuseWithAReasonAndChangeNothing) {
  folder.Write("Segments/Arrivals/EDDF.arr", "my notes");
  EXPECT_FALSE(Save(SegmentType::arrival, "EDDF", TwoRows("", "x")));
  EXPECT_NE(reason.find("EDDF.arr: This is no valid segment file"), std::string::npos) << reason;
  EXPECT_EQ(folder.Read("Segments/Arrivals/EDDF.arr"), "my notes");
  EXPECT_FALSE(DeleteSegmentFile(folder.Path() / "vlm.ini", &reason));
  for (const char* name : {"a.enr", "a.DEP", "a.arr", "a.sgm"}) {
    folder.Write(name, "");
    EXPECT_TRUE(DeleteSegmentFile(folder.Path() / name, &reason)) << name;
  }
  EXPECT_FALSE(DeleteSegmentFile(folder.Path() / "a.sgm", &reason));
  EXPECT_NE(reason.find("a.sgm"), std::string::npos);

  folder.Write("other/Segments", "a file in the folder's place");
  EXPECT_FALSE(SaveSegment(AppFolder(folder.Path() / "other"),
                           {SegmentType::enroute, "", "x", TwoRows("", "x")}, &reason));
  EXPECT_NE(reason.find("Segments"), std::string::npos);
}

TEST(SegmentToSave, TellsWhatIsMissing) {
  SegmentToSave wanted{SegmentType::enroute, "EDDF", " ", {"", " ", {}}};
  EXPECT_EQ(SavingFault(wanted), "You have to select waypoints for the segment!");
  wanted.segment.rows.resize(1);
  EXPECT_EQ(SavingFault(wanted), "You have to specify a description!");
  wanted.segment.description = "x";
  EXPECT_EQ(SavingFault(wanted), "You have to specify a file name!");
  for (const char* name : {"a/b", "..\\b", ".hidden", "..", "a\nb"}) {
    wanted.fileName = name;
    EXPECT_NE(SavingFault(wanted).find(name), std::string::npos) << name;
  }
  wanted.fileName =
      "\xc3\x9c"
      "ber Nord 2.1";
  EXPECT_EQ(SavingFault(wanted), "");
  wanted.type = SegmentType::arrival;
  wanted.fileName.clear();
  EXPECT_EQ(SavingFault(wanted), "");
}

}  // namespace
