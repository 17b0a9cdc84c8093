// Finds rows by their ident. Built once per table; it answers with all rows
// of a trimmed ident in ascending order, as a scan from row 0 would meet them.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

class IdentIndex {
 public:
  IdentIndex() = default;

  // identOf(row) is the row's ident, trimmed; rows with an empty ident are
  // left out. The texts must live and stay as long as the index.
  template <class IdentOf>
  static IdentIndex Build(std::size_t rowCount, const IdentOf& identOf) {
    IdentIndex index(rowCount);
    for (std::size_t row = rowCount; row-- > 0;)
      index.AddInFront(static_cast<std::int32_t>(row), identOf(row));
    return index;
  }

  // The first row with this ident (exact letters, blanks around it ignored),
  // -1 if none.
  std::int32_t First(std::string_view ident) const;
  // The next row with the same ident behind row, -1 if none.
  std::int32_t Next(std::int32_t row) const { return next[static_cast<std::size_t>(row)]; }
  // All rows with this ident, ascending.
  std::vector<std::int32_t> All(std::string_view ident) const;

 private:
  explicit IdentIndex(std::size_t rowCount);
  void AddInFront(std::int32_t row, std::string_view ident);
  std::size_t SlotOf(std::string_view ident) const;

  struct Slot {
    std::string_view ident;
    std::int32_t first = -1;
  };
  std::vector<Slot> slots;         // open addressing, a power of two
  std::vector<std::int32_t> next;  // by row
};
