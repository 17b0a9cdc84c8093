// A file of records one behind the other, without a count.
#pragma once

#include <span>

#include "base/binary.h"

// Hands each whole record to store. False if the last one is cut off.
template <class Record, class Store>
bool ParseRecords(std::span<const std::byte> bytes, const Store& store) {
  ByteReader reader(bytes);
  while (!reader.AtEnd()) {
    Record record;
    if (!reader.ReadRecord(record)) return false;
    store(record);
  }
  return true;
}
