// Finding numbered files and comparing them with the file that is full.
#include "identification/full_files.h"

#include "acquisition/opened_documents.h"
#include "acquisition/product_table.h"
#include "platform/run_time_error.h"
#include "platform/windows_path.h"

#include <set>

namespace veritane::identification {

namespace {

bool AreSame(acquisition::Spectrum& one, acquisition::Spectrum& other) {
  for (const char* name : {"SpectName", "Time"}) {
    if (one.GetParameter(name)->Value() != other.GetParameter(name)->Value()) return false;
  }
  const auto data = one.SpectrumData();
  const auto other_data = other.SpectrumData();
  const state::Ordinates values = data->Values();
  const state::Ordinates other_values = other_data->Values();
  return data->Spacing() == other_data->Spacing() && values.lower == other_values.lower &&
         values.values == other_values.values;
}

}  // namespace

std::string FirstFreeNumberedFile(const platform::FileSystem& files, const state::ProgramState& state) {
  const std::string table = acquisition::ProductTablePath(state);
  std::set<std::string> products;
  for (const acquisition::Product& product : acquisition::ReadProductTable(files.ReadBytes(table), table)) {
    products.insert(platform::UpperCase(product.productId));
  }
  constexpr int kMostFullFiles = 1000;
  for (int number = 1; number <= kMostFullFiles; ++number) {
    const std::string name = state.prod + "-" + std::to_string(number);
    // A product may be called what a numbered file of another is called; its spectra stay its own.
    if (products.contains(platform::UpperCase(name))) continue;
    std::string path = state.folders.InSamples(name + ".bsp");
    if (!files.FileExists(path)) return path;
  }
  return "";
}

std::string MoveNotePath(const state::ProgramState& state) {
  return state.folders.InSamples(state.prod + ".moving");
}

std::string MoveUnderWay(const platform::FileSystem& files, const state::ProgramState& state) {
  const std::string note = MoveNotePath(state);
  if (!files.FileExists(note)) return "";
  const std::string path = state.folders.InSamples(files.ReadBytes(note));
  // The full file is no copy of itself, whoever wrote that.
  return platform::UpperCase(path) == platform::UpperCase(state.tmpSampName) ? "" : path;
}

bool IsCopyOf(acquisition::Document& document, acquisition::SpectrometerApp& application,
              const std::string& path) {
  try {
    acquisition::OpenedDocuments opened;
    const auto copy = application.OpenDocument(path);
    opened.Add(copy);
    const std::int16_t count = platform::ToInt16(document.GetSpectrumCount());
    if (copy->GetSpectrumCount() != count) return false;
    for (std::int16_t index = 1; index <= count; ++index) {
      if (!AreSame(*copy->GetSpectrumAt(index), *document.GetSpectrumAt(index))) return false;
    }
    return true;
  } catch (const platform::RunTimeError&) {
    return false;
  }
}

}  // namespace veritane::identification
