// Packed little-endian records. A file format is described once, as a struct
// whose static Fields() names every field in file order; the same description
// reads the record, writes it and tells its size. Text fields are FixedText,
// bytes that no one keeps are Reserved.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

#include "base/fixed_text.h"

static_assert(std::endian::native == std::endian::little,
              "files are little-endian; swap here for other hosts");

// N bytes that are read over and written as zero.
template <std::size_t N>
struct Reserved {
  std::array<char, N> bytes{};
};

template <class Field>
concept PackedField = std::is_trivially_copyable_v<Field>;

namespace binary_detail {

struct SizeVisitor {
  std::size_t size = 0;
  template <PackedField Field>
  constexpr void operator()(const Field&) {
    size += sizeof(Field);
  }
};

struct ReadVisitor {
  const std::byte* from;
  template <PackedField Field>
  void operator()(Field& field) {
    std::memcpy(&field, from, sizeof(Field));
    from += sizeof(Field);
  }
};

struct WriteVisitor {
  std::byte* to;
  template <PackedField Field>
  void operator()(const Field& field) {
    std::memcpy(to, &field, sizeof(Field));
    to += sizeof(Field);
  }
};

}  // namespace binary_detail

// Size of a record in the file, in bytes.
template <class Record>
constexpr std::size_t RecordSize() {
  Record record{};
  binary_detail::SizeVisitor visitor;
  Record::Fields(record, visitor);
  return visitor.size;
}

// Fills the record from exactly RecordSize<Record>() bytes at from.
template <class Record>
void ReadRecordUnchecked(const std::byte* from, Record& record) {
  binary_detail::ReadVisitor visitor{from};
  Record::Fields(record, visitor);
}

// Appends the record's bytes to out.
template <class Record>
void AppendRecord(std::vector<std::byte>& out, const Record& record) {
  const std::size_t at = out.size();
  out.resize(at + RecordSize<Record>());
  binary_detail::WriteVisitor visitor{out.data() + at};
  Record::Fields(record, visitor);
}

// Appends one plain value.
template <PackedField Value>
void AppendValue(std::vector<std::byte>& out, const Value& value) {
  const std::size_t at = out.size();
  out.resize(at + sizeof(Value));
  std::memcpy(out.data() + at, &value, sizeof(Value));
}

// Walks over a file's bytes. A read past the end returns false, leaves the
// target as it was and moves to the end: a cut-off last record ends the walk.
class ByteReader {
 public:
  explicit ByteReader(std::span<const std::byte> bytes) : bytes(bytes) {}

  std::size_t Remaining() const { return bytes.size() - position; }
  std::size_t Position() const { return position; }
  bool AtEnd() const { return position >= bytes.size(); }

  template <class Record>
  bool ReadRecord(Record& record) {
    constexpr std::size_t size = RecordSize<Record>();
    if (!Take(size)) return false;
    ReadRecordUnchecked(bytes.data() + position - size, record);
    return true;
  }

  template <PackedField Value>
  bool ReadValue(Value& value) {
    if (!Take(sizeof(Value))) return false;
    std::memcpy(&value, bytes.data() + position - sizeof(Value), sizeof(Value));
    return true;
  }

  // The next size bytes, or an empty span and the end of the walk.
  std::span<const std::byte> ReadBytes(std::size_t size) {
    if (!Take(size)) return {};
    return bytes.subspan(position - size, size);
  }

 private:
  bool Take(std::size_t size) {
    if (Remaining() < size) {
      position = bytes.size();
      return false;
    }
    position += size;
    return true;
  }

  std::span<const std::byte> bytes;
  std::size_t position = 0;
};
