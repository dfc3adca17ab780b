// The blocks of a JCAMP-DX file, one inside or behind the other.
#include "simulator/jcamp_reader.h"

#include "platform/utf8.h"
#include "simulator/jcamp_value.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace veritane::simulator {

namespace {

using Kind = JcampFault::Kind;

constexpr std::array kOtherTables = {"PEAKTABLE", "PEAKASSIGNMENTS", "NTUPLES",       "DATATABLE",
                                     "RADATA",    "ASSIGNMENTS",     "XYASSIGNMENTS", "XYW"};

class FileReader {
public:
  explicit FileReader(std::string_view text) : text_(text), scanner_(text) {}

  JcampFile Read() {
    while (const auto label = scanner_.NextLabel()) {
      Take(*label);
    }
    Finish();
    return std::move(file_);
  }

private:
  void Take(const JcampLabel& label) {
    const std::string& name = label.normalized;
    const bool is_table = name == "XYDATA" || name == "XYPOINTS";
    if (name == "TITLE") {
      Begin(label);
    } else if (name == "END") {
      End();
    } else if (!block_) {
      TakeOutside(label, is_table);
    } else if (is_table) {
      block_->ReadTable(label, scanner_, kMostJcampPoints - points_);
    } else if (std::ranges::find(kOtherTables, name) != kOtherTables.end()) {
      block_->AddOtherTable(label);
    } else {
      block_->AddLabel(label, scanner_.FullValue(label));
    }
  }

  // A label between blocks belongs to the file as a whole; data there have lost their block.
  void TakeOutside(const JcampLabel& label, bool is_table) {
    if (blocks_ == 0 && open_containers_ == 0) {
      block_.emplace(text_, label.position);
      Take(label);
    } else if (is_table) {
      throw FaultAt(Kind::kDamaged, text_, label.position, "data outside any block");
    }
  }

  void Begin(const JcampLabel& label) {
    if (block_ && block_->IsContainer()) {
      nested_ = nested_ || open_containers_ > 0;
      ++open_containers_;
      if (!declared_blocks_) declared_blocks_ = block_->DeclaredBlocks();
      block_.reset();
    } else if (block_) {
      Close(false);
    }
    block_.emplace(text_, label.position);
    block_->AddLabel(label, scanner_.FullValue(label));
  }

  void End() {
    if (block_) {
      if (block_->IsContainer() && !declared_blocks_) declared_blocks_ = block_->DeclaredBlocks();
      Close(true);
    } else if (open_containers_ > 0) {
      --open_containers_;
    }
  }

  // Takes the spectrum out of the block, or notes why there is none.
  void Close(bool ended) {
    JcampBlock block = *std::exchange(block_, std::nullopt);
    if (block.IsContainer()) return;
    ++blocks_;
    if (!block.Unusable().empty()) {
      LeaveOut(block, block.Unusable());
    } else if (!block.HasTable()) {
      LeaveOut(block, "line " + std::to_string(block.LineNumber()) + ": the block holds no data");
    }
    if (!block.HasTable()) return;
    points_ += block.PointCount();
    try {
      file_.spectra.push_back(block.ToSpectrum(ended));
    } catch (const JcampFault& fault) {
      if (fault.FaultKind() != Kind::kNotSpectrum) throw;
      LeaveOut(block, fault.what());
    }
  }

  void LeaveOut(const JcampBlock& block, const std::string& reason) {
    file_.leftOut.push_back("left out from \"" + block.Title() + "\": " + reason);
  }

  void Finish() {
    if (block_) Close(false);
    CheckBlockCount();
    if (file_.spectra.empty()) {
      throw JcampFault(Kind::kNotSpectrum, file_.leftOut.empty()
                                               ? "the file holds no JCAMP-DX spectrum"
                                               : "no spectrum can be shown: " + file_.leftOut[0]);
    }
    for (JcampSpectrum& spectrum : file_.spectra) {
      spectrum.warnings.insert(spectrum.warnings.end(), file_.leftOut.begin(), file_.leftOut.end());
      spectrum.warnings.insert(spectrum.warnings.end(), warnings_.begin(), warnings_.end());
    }
  }

  void CheckBlockCount() {
    const auto found = static_cast<double>(blocks_);
    const std::string counts = declared_blocks_ ? "BLOCKS declares " + ExactNumber(*declared_blocks_) +
                                                      " spectra, " + std::to_string(blocks_) + " are there"
                                                : "";
    if (open_containers_ > 0) {
      if (declared_blocks_ && !nested_ && found < *declared_blocks_) {
        throw FaultAt(Kind::kDamaged, text_, text_.size(), "the file is cut off: " + counts);
      }
      warnings_.push_back("the last ##END= is missing; the file may have been cut off");
    }
    // Where compound blocks lie in compound blocks the count means whatever its writer meant.
    if (declared_blocks_ && !nested_ && found != *declared_blocks_) warnings_.push_back(counts);
  }

  std::string_view text_;
  JcampScanner scanner_;
  std::optional<JcampBlock> block_;
  JcampFile file_;
  std::vector<std::string> warnings_;
  std::optional<double> declared_blocks_;
  std::size_t open_containers_ = 0;
  bool nested_ = false;
  std::size_t blocks_ = 0;
  std::size_t points_ = 0;
};

}  // namespace

JcampFile ReadJcamp(std::string_view text) {
  if (text.starts_with(platform::kByteOrderMark)) text.remove_prefix(platform::kByteOrderMark.size());
  return FileReader(text).Read();
}

}  // namespace veritane::simulator
