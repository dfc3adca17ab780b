// Looking for the newest spectrum. Files come and go meanwhile; one that cannot be read is as good as absent.
#include "apps/simulator_panel/newest_spectrum.h"

#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "simulator/spectrum_file.h"

#include <algorithm>
#include <cstdlib>

namespace veritane::simulator_panel {

namespace {

constexpr std::int64_t kTimesAreToldInSeconds = 2;

}  // namespace

bool NewestSpectrum::Look() {
  std::vector<Candidate> candidates = Candidates();
  if (candidates == candidates_ && !may_change_unseen_) return false;
  candidates_ = std::move(candidates);
  may_change_unseen_ = false;
  if (!candidates_.empty()) {
    const std::int64_t age = platform::WallClockSeconds(clock_.LocalNow()) -
                             platform::WallClockSeconds(candidates_.front().modified);
    may_change_unseen_ = std::abs(age) <= kTimesAreToldInSeconds;
  }
  found_.reset();
  for (const Candidate& candidate : candidates_) {
    found_ = Read(candidate);
    if (found_) break;
  }
  const bool is_newest = candidates_.empty() || (found_ && found_->path == candidates_.front().path);
  passed_over_ = is_newest ? "" : candidates_.front().path;
  return true;
}

// A drive that is gone for a while has none.
std::vector<std::string> NewestSpectrum::FoldersNow() const {
  try {
    return folders_();
  } catch (const platform::RunTimeError&) {
    return {};
  }
}

std::vector<NewestSpectrum::Candidate> NewestSpectrum::Candidates() const {
  std::vector<Candidate> candidates;
  for (const std::string& folder : FoldersNow()) {
    std::vector<std::string> names;
    try {
      names = files_.ListFiles(folder);
    } catch (const platform::RunTimeError&) {
      continue;
    }
    for (const std::string& name : names) {
      if (!platform::UpperCase(name).ends_with(".BSP")) continue;
      const std::string path = folder + "\\" + name;
      try {
        candidates.push_back({path, files_.LastModified(path)});
      } catch (const platform::RunTimeError&) {
        continue;
      }
    }
  }
  std::ranges::stable_sort(candidates, std::ranges::greater(), &Candidate::modified);
  return candidates;
}

std::optional<FiledSpectrum> NewestSpectrum::Read(const Candidate& candidate) const {
  try {
    simulator::SpectrumFile file =
        simulator::ReadSpectrumFile(candidate.path, files_.ReadBytes(candidate.path));
    return FiledSpectrum{candidate.path, candidate.modified, file.spectra.size(),
                         std::move(file.spectra.back())};
  } catch (const platform::RunTimeError&) {
    return std::nullopt;
  }
}

}  // namespace veritane::simulator_panel
