// A small world as source files: one towered airport with an ILS, an airway
// of two points, a VOR, an NDB, a fix, and an island.
#pragma once

#include "source_text.h"
#include "tests/temporary_folder.h"

class SmallSources {
 public:
  SmallSources() {
    folder.Write("apt.dat", WithHead("1000", Airport("EDDF", "Frankfurt") + "99\n"));
    folder.Write("nav.dat", WithHead("810",
                                     "2 50.1 8.1 0 300 25 0 NDB SOME NDB\n"
                                     "3 50.0 8.0 0 11420 60 0 FFM FRANKFURT VOR-DME\n"
                                     "4 49.9 8.5 360 11155 18 249.5 IFCW EDDF 25C ILS-cat-III\n"
                                     "6 50.0 8.5 360 11155 10 300249.5 IFCW EDDF 25C GS\n"
                                     "7 50.0 8.6 360 0 0 249.5 ---- EDDF 25C OM\n99\n"));
    folder.Write("fix.dat", WithHead("600", "51 9 ALONE\n50.5 8.5 ONWAY\n99\n"));
    folder.Write("awy.dat", WithHead("640",
                                     "FFM 50.0 8.0 ONWAY 50.5 8.5 1 050 245 L1\n"
                                     "FFM 50.0 8.0 ONWAY 50.5 8.5 2 245 460 UL1\n99\n"));
    folder.Write("metar.dat", "# stations\nEDDF\nXXXX\n");
    const std::string world =
        R"({"objects":{"NAME":{"geometries":[{"type":"Polygon","id":"276","arcs":[[0,1]]},
        {"type":"Polygon","id":"250","arcs":[[2,-2]]}]}},
        "transform":{"scale":[1,1],"translate":[0,40]},
        "arcs":[[[10,20],[-10,0],[0,-20],[10,0]],[[10,0],[0,20]],[[10,0],[10,0],[0,20],[-10,0]]]})";
    for (const std::string name : {"land", "countries"}) {
      std::string text = world;
      folder.Write(name + "-50m.json", text.replace(text.find("NAME"), 4, name));
    }
    std::filesystem::copy_file(std::filesystem::path(VELMORA_SOURCE_DIR) / "data/wmm2025.txt",
                               folder.Path() / "wmm2025.txt");
    folder.Write("VLM_intro.bmp", "BM picture");
  }

  static std::string Airport(const std::string& code, const std::string& name) {
    return "1 364 1 0 " + code + " " + name +
           "\n100 60 1 0 0.25 1 3 0 07C 50.03 8.53 0 0 3 0 0 1 25C 50.05 8.59 0 0 3 0 0 1\n"
           "54 11990 Tower\n110 1 0.25 0 Ramp\n111 50 8\n111 50 8.1\n113 50.1 8.1\n";
  }

  const TemporaryFolder& Folder() const { return folder; }
  const std::filesystem::path& Path() const { return folder.Path(); }

 private:
  TemporaryFolder folder;
};
