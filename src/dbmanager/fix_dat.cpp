#include "dbmanager/fix_dat.h"

FixData ReadFixDat(LineReader& lines, Rejects& rejects) {
  FixData data;
  data.head = ReadSourceHead(lines, 600, 1200);
  const bool hasRegion = data.head.version >= 1100;
  std::string_view line;
  while (!data.complete && lines.Next(line)) {
    const LineFields fields(line);
    if (fields.Count() == 0) continue;
    if (fields.Count() == 1 && fields[0] == "99") {
      data.complete = true;
      continue;
    }
    const auto position = ParsePosition(fields, 0);
    if (!position) {
      rejects.Add(lines.Name(), lines.LineNumber(), "no position");
    } else if (fields[2].empty()) {
      rejects.Add(lines.Name(), lines.LineNumber(), "no ident");
    } else {
      // Behind the ident of 1100: the terminal area or ENRT, then the region.
      data.fixes.push_back({CodePageOf(fields[2]), hasRegion ? CodePageOf(fields[4]) : "", *position,
                            hasRegion ? CodePageOf(fields[3]) : ""});
    }
  }
  return data;
}
