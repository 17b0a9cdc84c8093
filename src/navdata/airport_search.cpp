#include "navdata/airport_search.h"

#include <algorithm>
#include <tuple>

#include "base/code_page.h"
#include "base/folded_text.h"

namespace {

// How well an airport answers, best first.
enum class Rank { code, codeBeginning, wholeWords, wordBeginnings, none };

// One word that was typed, in both spellings of its umlauts (often the same).
struct TypedWord {
  std::string plain;
  std::string spelled;
};

std::vector<std::string> Words(const std::string& folded) {
  std::vector<std::string> words;
  for (std::size_t at = 0; at < folded.size();) {
    const std::size_t end = std::min(folded.find(' ', at), folded.size());
    words.push_back(folded.substr(at, end - at));
    at = end + 1;
  }
  return words;
}

std::vector<TypedWord> TypedWords(std::string_view typed) {
  const std::string text = Utf8ToCodePage(typed);
  const auto plain = Words(Folded(text, Umlauts::plain, Apostrophes::join));
  const auto spelled = Words(Folded(text, Umlauts::spelled, Apostrophes::join));
  std::vector<TypedWord> words;
  for (std::size_t i = 0; i < plain.size() && i < spelled.size(); ++i)
    words.push_back({plain[i], spelled[i]});
  return words;
}

void AppendWords(std::string& folded, std::string_view text) {
  const std::string parted = Folded(text, Umlauts::plain, Apostrophes::part);
  if (parted.empty()) return;
  (folded += ' ') += parted;
  for (const Umlauts umlauts : {Umlauts::plain, Umlauts::spelled}) {
    const std::string other = Folded(text, umlauts, Apostrophes::join);
    if (other != parted) (folded += ' ') += other;
  }
}

// words: the airport's, each with a blank before it, its code the first.
Rank RankOfWord(std::string_view words, const TypedWord& typed) {
  Rank best = Rank::none;
  for (std::size_t at = 1; at < words.size();) {
    const std::size_t end = std::min(words.find(' ', at), words.size());
    const std::string_view word = words.substr(at, end - at);
    // Most words are told apart by their first letter.
    const bool mayBe = !word.empty() && (word[0] == typed.plain[0] || word[0] == typed.spelled[0]);
    if (!mayBe) {
      at = end + 1;
      continue;
    }
    if (word.starts_with(typed.plain) || word.starts_with(typed.spelled)) {
      const bool whole = word == typed.plain || word == typed.spelled;
      const Rank rank = at == 1 ? (whole ? Rank::code : Rank::codeBeginning)
                                : (whole ? Rank::wholeWords : Rank::wordBeginnings);
      best = std::min(best, rank);
    }
    at = end + 1;
  }
  return best;
}

// Among several words the beginning of a code says no more than that of a name.
Rank RankOfAirport(std::string_view words, const std::vector<TypedWord>& typed) {
  if (typed.size() == 1) return RankOfWord(words, typed.front());
  bool codeTyped = false;
  Rank worst = Rank::code;
  for (const TypedWord& word : typed) {
    Rank rank = RankOfWord(words, word);
    if (rank == Rank::none) return Rank::none;
    if (rank == Rank::codeBeginning) rank = Rank::wordBeginnings;
    codeTyped = codeTyped || rank == Rank::code;
    worst = std::max(worst, rank);
  }
  return codeTyped ? Rank::code : worst;
}

std::int32_t LongestRunway(const NavDatabase& database, const AirportRec& airport, bool onWater) {
  constexpr std::uint8_t water = 2;
  std::int32_t longest = 0;
  for (const RunwayRec& runway : database.Runways(airport)) {
    if ((runway.bytSurface == water) == onWater) longest = std::max<std::int32_t>(longest, runway.intLength);
  }
  return longest;
}

}  // namespace

std::int32_t LongestRunwayFeet(const NavDatabase& database, const AirportRec& airport) {
  const std::int32_t onLand = LongestRunway(database, airport, false);
  return onLand > 0 ? onLand : LongestRunway(database, airport, true);
}

AirportSearch::AirportSearch(const NavDatabase& database) : database(database) {
  const auto count = static_cast<std::size_t>(database.AirportCount());
  entries.reserve(count + 1);
  for (std::size_t row = 0; row < count; ++row) {
    const AirportRec& airport = database.airports[row];
    entries.push_back({folded.size(), LongestRunway(database, airport, false)});
    // An airport without a code keeps an empty first word.
    (folded += ' ') += Folded(airport.strCode.View(), Umlauts::plain, Apostrophes::join);
    AppendWords(folded, airport.strName.View());
    AppendWords(folded, airport.strCity.View());
    if (airport.strState != "0") AppendWords(folded, airport.strState.View());
    AppendWords(folded, airport.strCountry.View());
  }
  entries.push_back({folded.size(), 0});
}

AirportsFound AirportSearch::Find(std::string_view typed, std::size_t most) const {
  AirportsFound found;
  const std::vector<TypedWord> words = TypedWords(typed);
  if (words.empty()) return found;
  struct Hit {
    Rank rank;
    std::int32_t longestRunway;
    std::int32_t row;
  };
  std::vector<Hit> hits;
  const std::string_view all = folded;
  for (std::size_t row = 0; row + 1 < entries.size(); ++row) {
    const Entry& entry = entries[row];
    const Rank rank = RankOfAirport(all.substr(entry.start, entries[row + 1].start - entry.start), words);
    if (rank != Rank::none) hits.push_back({rank, entry.longestRunway, static_cast<std::int32_t>(row)});
  }
  const auto code = [&](const Hit& hit) {
    return database.airports[static_cast<std::size_t>(hit.row)].strCode.View();
  };
  const std::size_t listed = std::min(most, hits.size());
  std::partial_sort(hits.begin(), hits.begin() + static_cast<std::ptrdiff_t>(listed), hits.end(),
                    [&](const Hit& a, const Hit& b) {
                      return std::tuple(a.rank, -a.longestRunway, code(a), a.row) <
                             std::tuple(b.rank, -b.longestRunway, code(b), b.row);
                    });
  found.total = hits.size();
  for (std::size_t i = 0; i < listed; ++i)
    found.rows.push_back(hits[i].row);
  return found;
}

std::int32_t NearestAirportNamed(const NavDatabase& database, std::string_view name, Position place) {
  std::int32_t nearest = -1;
  float least = 0;
  for (std::int32_t row = 0; !name.empty() && row < database.AirportCount(); ++row) {
    const AirportRec& airport = database.airports[static_cast<std::size_t>(row)];
    if (airport.strName.View() != name) continue;
    const float distance = GreatCircleDistance(place.lat, place.lon, airport.sngLat, airport.sngLon);
    if (nearest >= 0 && distance >= least) continue;
    nearest = row;
    least = distance;
  }
  return nearest;
}
