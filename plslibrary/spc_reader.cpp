// SPC files: the two headers, and the three ways in which spectra follow them.
#include "plslibrary/spc_reader.h"

#include "plslibrary/even_spacing.h"
#include "plslibrary/spc_bytes.h"

#include <cmath>
#include <cstdint>

namespace veritane::plslibrary {

namespace {

constexpr std::uint8_t kNewLittleEndian = 0x4B;
constexpr std::uint8_t kNewBigEndian = 0x4C;
constexpr std::uint8_t kOld = 0x4D;

// Bits of the flags in byte 0.
constexpr std::uint8_t k16Bit = 0x01;
constexpr std::uint8_t kSeveralSpectra = 0x04;
constexpr std::uint8_t kOwnX = 0x40;
constexpr std::uint8_t kStoredX = 0x80;

constexpr std::uint64_t kNewHeaderSize = 512;
constexpr std::uint64_t kOldHeaderSize = 256;  // the first spectrum's subheader is its last part
constexpr std::uint64_t kSubheaderSize = 32;
constexpr std::uint64_t kDirectoryEntrySize = 12;
constexpr std::uint64_t kStoredXSize = 4;

struct SpcHeader {
  std::uint8_t flags = 0;
  int exponent = 0;
  std::uint64_t points = 0;  // the directory's offset where each spectrum has its own x
  double firstX = 0;
  double lastX = 0;
  std::uint64_t spectra = 1;
  int xType = 0;
  int yType = 0;
  bool isOld = false;

  bool Has(std::uint8_t flag) const { return (flags & flag) != 0; }
};

// Begins the text of an error: "spectrum 2: ", or nothing where there is but one.
std::string Named(const SpcHeader& header, std::uint64_t number) {
  return header.Has(kSeveralSpectra) ? "spectrum " + std::to_string(number) + ": " : "";
}

SpcHeader ReadNewHeader(const SpcBytes& bytes) {
  bytes.RequireRange(0, kNewHeaderSize);
  SpcHeader header;
  header.flags = bytes.At<std::uint8_t>(0);
  header.exponent = bytes.At<std::int8_t>(3);
  header.points = bytes.At<std::uint32_t>(4);
  header.firstX = bytes.At<double>(8);
  header.lastX = bytes.At<double>(16);
  const auto spectra = bytes.At<std::uint32_t>(24);
  header.xType = bytes.At<std::uint8_t>(28);
  header.yType = bytes.At<std::uint8_t>(29);
  if (header.Has(kSeveralSpectra)) {
    header.spectra = spectra;
    if (spectra == 0) throw SpectrumReadError("the SPC file says that it holds no spectrum");
  } else if (spectra > 1) {
    throw SpectrumReadError("the SPC file contradicts itself: it holds one spectrum and " +
                            std::to_string(spectra) + " of them");
  }
  if (header.Has(kOwnX) && !header.Has(kStoredX)) {
    throw SpectrumReadError(
        "the SPC file contradicts itself: each spectrum has x of its own, and none is "
        "stored");
  }
  return header;
}

SpcHeader ReadOldHeader(const SpcBytes& bytes) {
  bytes.RequireRange(0, kOldHeaderSize);
  SpcHeader header;
  header.isOld = true;
  header.flags = bytes.At<std::uint8_t>(0);
  header.exponent = bytes.At<std::int16_t>(2);
  // The exponent of IEEE numbers is a byte's; in the 16 bits here its sign may be missing.
  if (header.exponent == -SpcCoding::kIeeeExponent) header.exponent = SpcCoding::kIeeeExponent;
  if (header.exponent < -128 || header.exponent > 127) {
    throw SpectrumReadError("the exponent " + std::to_string(header.exponent) + " is no SPC file's");
  }
  const double points = bytes.At<float>(4);
  if (!(points >= 1 && points <= 4294967295.0 && points == std::floor(points))) {
    throw SpectrumReadError("the number of points is no whole number");
  }
  header.points = static_cast<std::uint64_t>(points);
  header.firstX = bytes.At<float>(8);
  header.lastX = bytes.At<float>(12);
  header.xType = bytes.At<std::uint8_t>(16);
  header.yType = bytes.At<std::uint8_t>(17);
  if (header.Has(kOwnX) || header.Has(kStoredX)) {
    throw SpectrumReadError("an SPC file of the old form cannot store x point by point");
  }
  return header;
}

// In a file of several spectra each subheader has its own exponent, in a file of one the header's counts.
SpcCoding CodingOf(const SpcBytes& bytes, const SpcHeader& header, std::uint64_t subheader) {
  return {.exponent = header.Has(kSeveralSpectra) ? bytes.At<std::int8_t>(subheader + 1) : header.exponent,
          .is16Bit = header.Has(k16Bit),
          .highWordFirst = header.isOld};
}

// Stored x are IEEE numbers in every file.
std::vector<double> ReadStoredX(const SpcBytes& bytes, std::uint64_t offset, std::uint64_t points,
                                const std::string& what) {
  std::vector<double> x = ReadOrdinates(bytes, offset, points, SpcCoding{}, what);
  RequireEvenSpacing(x, what);
  return x;
}

MeasuredSpectrum SpectrumAt(const SpcBytes& bytes, const SpcHeader& header, const SpcCoding& coding,
                            std::uint64_t data, std::uint64_t number) {
  return {.firstX = header.firstX,
          .lastX = header.lastX,
          .y = ReadOrdinates(bytes, data, header.points, coding, Named(header, number)),
          .xType = header.xType,
          .yType = header.yType};
}

// Spectra one after the other, all on the same x.
std::vector<MeasuredSpectrum> ReadOnSharedX(const SpcBytes& bytes, SpcHeader header) {
  std::uint64_t at = kNewHeaderSize;
  if (header.Has(kStoredX)) {
    const std::vector<double> x = ReadStoredX(bytes, at, header.points, "");
    header.firstX = x.front();
    header.lastX = x.back();
    at += header.points * kStoredXSize;
  }
  RequireLimits(header.firstX, header.lastX, header.points, "");
  std::vector<MeasuredSpectrum> spectra;
  for (std::uint64_t number = 1; number <= header.spectra; ++number) {
    const SpcCoding coding = CodingOf(bytes, header, at);
    spectra.push_back(SpectrumAt(bytes, header, coding, at + kSubheaderSize, number));
    at += kSubheaderSize + header.points * coding.BytesAPoint();
  }
  return spectra;
}

// Spectra wherever the directory says, each with a number of points and x of its own.
std::vector<MeasuredSpectrum> ReadFromDirectory(const SpcBytes& bytes, SpcHeader header) {
  const std::uint64_t directory = header.points;
  if (directory < kNewHeaderSize || header.spectra > bytes.Remaining(directory) / kDirectoryEntrySize) {
    throw SpectrumReadError("the directory of " + std::to_string(header.spectra) +
                            " spectra lies outside the SPC file");
  }
  std::vector<MeasuredSpectrum> spectra;
  std::uint64_t taken = kNewHeaderSize + header.spectra * kDirectoryEntrySize;
  for (std::uint64_t number = 1; number <= header.spectra; ++number) {
    const std::uint64_t subheader = bytes.At<std::uint32_t>(directory + (number - 1) * kDirectoryEntrySize);
    if (subheader < kNewHeaderSize) {
      throw SpectrumReadError(Named(header, number) + "its place is inside the header");
    }
    header.points = bytes.At<std::uint32_t>(subheader + 16);
    const std::vector<double> x =
        ReadStoredX(bytes, subheader + kSubheaderSize, header.points, Named(header, number));
    header.firstX = x.front();
    header.lastX = x.back();
    const SpcCoding coding = CodingOf(bytes, header, subheader);
    const std::uint64_t data = subheader + kSubheaderSize + header.points * kStoredXSize;
    taken += data + header.points * coding.BytesAPoint() - subheader;
    // Entries that point into each other would unfold a small file to any size.
    if (taken > bytes.Size()) throw SpectrumReadError("the spectra of the SPC file overlap");
    spectra.push_back(SpectrumAt(bytes, header, coding, data, number));
  }
  return spectra;
}

// The old form does not say how many spectra it holds: they go on until the end of the file.
std::vector<MeasuredSpectrum> ReadOld(const SpcBytes& bytes) {
  const SpcHeader header = ReadOldHeader(bytes);
  RequireLimits(header.firstX, header.lastX, header.points, "");
  std::vector<MeasuredSpectrum> spectra;
  std::uint64_t at = kOldHeaderSize - kSubheaderSize;
  do {
    const SpcCoding coding = CodingOf(bytes, header, at);
    spectra.push_back(SpectrumAt(bytes, header, coding, at + kSubheaderSize, spectra.size() + 1));
    at += kSubheaderSize + header.points * coding.BytesAPoint();
  } while (header.Has(kSeveralSpectra) && at < bytes.Size());
  return spectra;
}

}  // namespace

std::vector<MeasuredSpectrum> ReadSpc(std::string_view bytes) {
  const SpcBytes little_endian(bytes, std::endian::little);
  if (bytes.size() < 2) throw SpectrumReadError("the file is too short for an SPC file");
  const auto version = little_endian.At<std::uint8_t>(1);
  if (version == kOld) return ReadOld(little_endian);
  if (version != kNewLittleEndian && version != kNewBigEndian) {
    throw SpectrumReadError("the file is no SPC file of a known form: its second byte is " +
                            std::to_string(version));
  }
  const SpcBytes in_order = version == kNewBigEndian ? SpcBytes(bytes, std::endian::big) : little_endian;
  const SpcHeader header = ReadNewHeader(in_order);
  return header.Has(kOwnX) ? ReadFromDirectory(in_order, header) : ReadOnSharedX(in_order, header);
}

}  // namespace veritane::plslibrary
