#include "JpegFile.h"

#include <turbojpeg.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace quorb {

namespace {

constexpr std::uintmax_t kLargestFile = std::uintmax_t{64} << 20U;

struct CloseDecoder {
  void operator()(void* decoder) const { tjDestroy(decoder); }
};
using Decoder = std::unique_ptr<std::remove_pointer_t<tjhandle>, CloseDecoder>;

bool ReadBytes(const std::string& path, std::vector<unsigned char>& bytes, std::string& error) {
  std::error_code failure;
  const std::uintmax_t size = std::filesystem::file_size(path, failure);
  if (failure) {
    error = "The picture " + path + " cannot be read: " + failure.message() + ".";
    return false;
  }
  if (size > kLargestFile) {
    error = "The picture " + path + " is larger than 64 MiB.";
    return false;
  }
  bytes.resize(static_cast<std::size_t>(size));
  std::ifstream file(path, std::ios::binary);
  file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
  if (file) return true;
  error = "The picture " + path + " cannot be read.";
  return false;
}

bool Decode(const std::string& path, PixelImage& image, std::string& error) {
  std::vector<unsigned char> bytes;
  if (!ReadBytes(path, bytes, error)) return false;
  const Decoder decoder(tjInitDecompress());
  PixelImage read;
  int subsampling = 0, colourSpace = 0;
  const auto size = static_cast<unsigned long>(bytes.size());
  if (tjDecompressHeader3(decoder.get(), bytes.data(), size, &read.width, &read.height, &subsampling,
                          &colourSpace) != 0) {
    error = "The picture " + path + " is no JPEG file: " + tjGetErrorStr2(decoder.get()) + ".";
    return false;
  }
  if (read.width > kLongestJpegSide || read.height > kLongestJpegSide) {
    error = "The picture " + path + " has sides of more than 16384 pixels.";
    return false;
  }
  if (std::int64_t{read.width} * read.height > kMostJpegPixels) {
    error = "The picture " + path + " has more than 67108864 pixels.";
    return false;
  }
  read.rgb.resize(read.At(0, read.height));
  if (tjDecompress2(decoder.get(), bytes.data(), size, read.rgb.data(), read.width, 0, read.height, TJPF_RGB,
                    TJFLAG_STOPONWARNING) != 0) {
    error = "The picture " + path + " is damaged: " + tjGetErrorStr2(decoder.get()) + ".";
    return false;
  }
  image = std::move(read);
  return true;
}

}  // namespace

bool ReadJpeg(const std::string& path, PixelImage& image, std::string& error) {
  try {
    return Decode(path, image, error);
  } catch (const std::bad_alloc&) {
    error = "There is not enough memory for the picture " + path + ".";
    return false;
  }
}

}  // namespace quorb
