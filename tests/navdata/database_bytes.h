// Writes database files into memory, through the records that the loaders read.
#pragma once

#include <cstddef>
#include <vector>

#include "navdata/file_records.h"

class DatabaseBytes {
 public:
  template <class Record>
  DatabaseBytes& Add(const Record& record) {
    AppendRecord(bytes, record);
    return *this;
  }
  template <class Value>
  DatabaseBytes& AddValue(Value value) {
    AppendValue(bytes, value);
    return *this;
  }
  std::span<const std::byte> All() const { return bytes; }
  // Without the last count bytes, as if the file were cut off.
  std::span<const std::byte> CutBy(std::size_t count) const { return All().first(bytes.size() - count); }

 private:
  std::vector<std::byte> bytes;
};
