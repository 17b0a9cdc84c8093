#include "navdata/ident_index.h"

#include <bit>
#include <cstddef>

#include "base/fixed_text.h"

IdentIndex::IdentIndex(std::size_t rowCount) : slots(std::bit_ceil(rowCount * 2 + 1)), next(rowCount, -1) {}

std::size_t IdentIndex::SlotOf(std::string_view ident) const {
  const std::size_t mask = slots.size() - 1;
  // FNV-1a, 64 bit.
  std::uint64_t hash = 14695981039346656037u;
  for (const char c : ident)
    hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211u;
  std::size_t slot = (hash ^ (hash >> 29)) & mask;
  while (slots[slot].first >= 0 && slots[slot].ident != ident)
    slot = (slot + 1) & mask;
  return slot;
}

void IdentIndex::AddInFront(std::int32_t row, std::string_view ident) {
  if (ident.empty()) return;
  Slot& slot = slots[SlotOf(ident)];
  next[static_cast<std::size_t>(row)] = slot.first;
  slot.ident = ident;
  slot.first = row;
}

std::int32_t IdentIndex::First(std::string_view ident) const {
  ident = Trimmed(ident);
  if (slots.empty() || ident.empty()) return -1;
  return slots[SlotOf(ident)].first;
}

std::vector<std::int32_t> IdentIndex::All(std::string_view ident) const {
  std::vector<std::int32_t> rows;
  for (std::int32_t row = First(ident); row >= 0; row = Next(row))
    rows.push_back(row);
  return rows;
}
