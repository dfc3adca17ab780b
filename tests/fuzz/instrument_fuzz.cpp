// Feeds arbitrary bytes to the readers of the instrument's files: collect methods (first byte 'm') and the
// sample compartment ('c', or 's' for a state that a program sets). What is taken lies inside the
// instrument's limits and reads back when it is written; what is refused is refused with a RunTimeError.
#include "platform/run_time_error.h"
#include "simulator/collect_method.h"
#include "simulator/compartment.h"
#include "tests/fuzz/require.h"
#include "tests/support/memory_file_system.h"

#include <cmath>
#include <cstring>

namespace {

using namespace veritane;
using fuzz::Require;

void CollectMethod(std::string_view bytes) {
  const simulator::CollectMethodSettings settings = simulator::ParseCollectMethod(bytes);
  const simulator::WavenumberGrid grid = simulator::GridOf(settings);
  Require(grid.points >= 2 && grid.points <= 100000);
  Require(grid.Wavenumber(0) > 0 && std::isfinite(grid.Wavenumber(grid.Size() - 1)));
  // Numbers are written to fifteen digits; from then on nothing changes.
  const std::string written = simulator::CollectMethodText(settings);
  Require(simulator::CollectMethodText(simulator::ParseCollectMethod(written)) == written);
}

void Compartment(std::string_view bytes) {
  const std::string path = "C:\\compartment.txt";
  tests::MemoryFileSystem files;
  files.WriteBytes(path, bytes);
  simulator::Compartment compartment(files, path);
  const simulator::CompartmentState state = compartment.Read();
  Require(state.noise >= 0 && state.duration >= 0 && state.faultCount >= 0);
  const std::string written = simulator::CompartmentText(state);
  compartment.Write(state);
  Require(simulator::CompartmentText(compartment.Read()) == written);
  const bool is_due = state.fault != 0 && state.faultCount > 0;
  Require(compartment.TakeFault() == (is_due ? state.fault : 0));
  Require(compartment.Read().faultCount == state.faultCount - (is_due ? 1 : 0));
}

// Takes a number off the front of the bytes, 0 where there are too few.
template <typename Number>
Number Take(std::string_view& bytes) {
  Number number = 0;
  if (bytes.size() < sizeof number) return number;
  std::memcpy(&number, bytes.data(), sizeof number);
  bytes.remove_prefix(sizeof number);
  return number;
}

// Whatever a program wrote, the next one can read.
void CompartmentOfAnyState(std::string_view bytes) {
  simulator::CompartmentState state;
  state.fault = Take<std::int32_t>(bytes);
  state.faultCount = Take<int>(bytes);
  state.noise = Take<double>(bytes);
  state.duration = Take<int>(bytes);
  state.seed = Take<std::uint32_t>(bytes);
  state.sample = bytes;
  tests::MemoryFileSystem files;
  simulator::Compartment compartment(files, "C:\\compartment.txt");
  compartment.Write(state);
  Require(files.writes == 1);
  bool is_read = true;
  try {
    compartment.Read();
  } catch (const platform::RunTimeError&) {
    is_read = false;
  }
  Require(is_read);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Feed({{'m', CollectMethod}, {'c', Compartment}, {'s', CompartmentOfAnyState}}, data, size);
  return 0;
}
