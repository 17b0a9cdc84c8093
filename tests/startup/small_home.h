// An application folder with the smallest database that the start-up accepts:
// one airport, one intersection with a link to itself, one of everything else.
#pragma once

#include <vector>

#include "navdata/file_records.h"
#include "tests/temporary_folder.h"

class SmallHome {
 public:
  SmallHome() {
    folder.Write("magvar09.qtr", std::string(360 * 181 * 2, '\0'));
    folder.Write("magvar10.qtr", std::string(360 * 181 * 2, '\0'));
    folder.Write("VLM_intro.bmp", "BM");
    for (const char* version : {"FS09", "FS10"})
      WriteVersion(version);
    WriteShared();
    folder.Write("database/WxStation.txt", "EDDF,50.03,8.57\r\n");
    folder.Write("database/sid.vlm", "x");
    folder.Write("database/star.vlm", "x");
    folder.Write("database/AIRAC.INI", "2013.10\r\n");
    folder.Write("user/aircraft.vlm",
                 "1,Slow,200,180,1400,900,300,900,80,500,120,130,80,90,0,700\r\n"
                 "12,Jet,20000,410,79000,42000,20000,2000,280,1800,280,450,350,145,0,3000\r\n");
  }

  const TemporaryFolder& Folder() const { return folder; }
  const std::filesystem::path& Path() const { return folder.Path(); }
  void Remove(const std::filesystem::path& name) const { std::filesystem::remove_all(Path() / name); }

 private:
  template <class... Records>
  void WriteRecords(const std::filesystem::path& name, const Records&... records) {
    std::vector<std::byte> bytes;
    (AppendRecord(bytes, records), ...);
    folder.Write(name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  }

  struct Count {
    std::int32_t count = 1;
    static constexpr void Fields(auto& r, auto& visit) { visit(r.count); }
  };

  void WriteVersion(const std::filesystem::path& version) {
    const auto at = [&](const char* name) { return "database" / version / name; };
    WriteRecords(at("region.vlm"), Count{}, RegionFileRecord{FixedText<30>("Europe")});
    WriteRecords(at("country.vlm"), Count{},
                 CountryFileRecord{FixedText<40>("Germany"), FixedText<30>("Europe")});
    WriteRecords(at("state.vlm"), Count{}, StateFileRecord{FixedText<40>("Hesse"), FixedText<40>("Germany")});
    WriteRecords(
        at("city.vlm"), Count{},
        CityFileRecord{FixedText<40>("Frankfurt"), FixedText<40>("Hesse"), FixedText<40>("Germany")});
    AirportFileRecord airport;
    airport.strCode = "EDDF";
    airport.strName = "Frankfurt";
    airport.sngLat = 50.03F;
    airport.sngLon = 8.57F;
    AirportFileRecord other = airport;
    other.lngIndex = 1;
    other.strCode = "EDDM";
    other.sngLat = 48.35F;
    other.sngLon = 11.79F;
    WriteRecords(at("airport.vlm"), Count{2}, airport, other);
  }

  void WriteShared() {
    IntersectionFileRecord node;
    node.lngIndex = 1;
    node.strCode = "TABUM";
    WriteRecords("database/dijinter.vlm", node);
    AirwaySegmentFileRecord segment;
    segment.strName = "L1";
    segment.lngFrom = segment.lngTo = 1;
    WriteRecords("database/vicways.vlm", segment);
    WriteRecords("database/jetways.vlm", segment);
    FixFileRecord fix;
    fix.strCode = "FIXED";
    WriteRecords("database/fixes.vlm", fix);
    VorFileRecord vor;
    vor.strCode = "FFM";
    WriteRecords("database/vor.vlm", vor);
    NdbFileRecord ndb;
    ndb.strCode = "FR";
    WriteRecords("database/ndb.vlm", ndb);
    AirspaceFileRecord airspace;
    airspace.strCode = "C";
    WriteRecords("database/airspace.vlm", airspace, PointFileRecord{1, 1});
    WorldShapeFileRecord shape;
    WriteRecords("map/worldpolygon.bin", shape, PointFileRecord{1, 1});
    WriteRecords("map/worldline.bin", shape, PointFileRecord{1, 1});
  }

  TemporaryFolder folder;
};
