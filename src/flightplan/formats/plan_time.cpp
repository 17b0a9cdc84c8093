#include "flightplan/formats/plan_time.h"

#include "base/numbers.h"

std::string TimeText(std::chrono::sys_seconds moment) {
  using namespace std::chrono;
  const sys_days day = floor<days>(moment);
  const year_month_day date{day};
  const hh_mm_ss time{moment - day};
  const auto two = [](auto number) { return FormatPicture(static_cast<double>(number), "00"); };
  return FormatPicture(static_cast<int>(date.year()), "0000") + "-" +
         two(static_cast<unsigned>(date.month())) + "-" + two(static_cast<unsigned>(date.day())) + "T" +
         two(time.hours().count()) + ":" + two(time.minutes().count()) + ":" + two(time.seconds().count()) +
         "Z";
}
