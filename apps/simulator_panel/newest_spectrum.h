// Finds the spectrum that was measured or filed last, by looking at the files of some folders now and then.
#pragma once

#include "platform/file_system.h"
#include "simulator/stored_spectrum.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace veritane::simulator_panel {

struct FiledSpectrum {
  std::string path;
  platform::DateTime modified;
  std::size_t spectraInFile = 0;
  simulator::StoredSpectrum spectrum;  // the last one of the file
};

class NewestSpectrum {
public:
  // Asked at each look, because the program may be set up after the panel has begun. It may raise a
  // RunTimeError.
  using Folders = std::function<std::vector<std::string>()>;

  // Of files changed in the same second, one in an earlier folder counts as newer.
  NewestSpectrum(const platform::FileSystem& files, const platform::Clock& clock, Folders folders)
      : files_(files), clock_(clock), folders_(std::move(folders)) {}

  // Looks again, and returns whether Found or PassedOver may have changed. A folder that is missing or cannot
  // be looked at is an empty one.
  bool Look();

  // The last spectrum of the newest ".bsp" file that can be read; nothing when there is none.
  const std::optional<FiledSpectrum>& Found() const { return found_; }
  // The newest file when it cannot be read, else "".
  const std::string& PassedOver() const { return passed_over_; }

private:
  struct Candidate {
    std::string path;
    platform::DateTime modified;
    bool operator==(const Candidate&) const = default;
  };

  std::vector<std::string> FoldersNow() const;
  std::vector<Candidate> Candidates() const;
  std::optional<FiledSpectrum> Read(const Candidate& candidate) const;

  const platform::FileSystem& files_;
  const platform::Clock& clock_;
  const Folders folders_;
  std::vector<Candidate> candidates_;
  // The newest file may change once more within the second that its time is told in.
  bool may_change_unseen_ = false;
  std::optional<FiledSpectrum> found_;
  std::string passed_over_;
};

}  // namespace veritane::simulator_panel
