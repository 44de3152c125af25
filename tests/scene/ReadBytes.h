#pragma once

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace quorb {

/// The bytes of a file; none when it cannot be read.
inline std::vector<std::uint8_t> ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The little-endian number of `size` bytes at a place.
inline std::uint32_t NumberAt(const std::vector<std::uint8_t>& bytes, std::size_t place, int size = 4) {
  std::uint32_t number = 0;
  for (int i = size - 1; i >= 0; --i)
    number = number * 256 + bytes.at(place + static_cast<std::size_t>(i));
  return number;
}

}  // namespace quorb
