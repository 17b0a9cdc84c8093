// The lines of the sources that could not be used, each with its file, line
// number and reason. The first ones are kept whole, all are counted.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

struct RejectedLine {
  std::string file;
  std::size_t line = 0;  // from 1; 0: the file as a whole
  std::string reason;
};

class Rejects {
 public:
  static constexpr std::size_t keptLines = 20;

  void Add(std::string_view file, std::size_t line, std::string_view reason) {
    ++count;
    if (kept.size() < keptLines) kept.push_back({std::string(file), line, std::string(reason)});
  }

  std::size_t Count() const { return count; }
  const std::vector<RejectedLine>& Kept() const { return kept; }

 private:
  std::size_t count = 0;
  std::vector<RejectedLine> kept;
};
