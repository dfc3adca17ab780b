// A supervisor's new product: its dialog, a fresh background, the measured Standard, and its row in the
// product table.
#pragma once

#include "acquisition/bench.h"
#include "acquisition/collection.h"
#include "acquisition/frm_collect_std.h"
#include "acquisition/opened_documents.h"
#include "acquisition/product_table.h"

#include <string>

namespace veritane::acquisition {

// Why a Product ID cannot become a product, as a sentence for the supervisor, or "".
std::string WhyNotAProduct(const platform::FileSystem& files, const state::ProgramState& state,
                           const std::string& product_id);

class StandardCollection {
public:
  StandardCollection(Bench& bench, FrmCollectStd& frm_collect_std);

  // Runs once, to the end or to an early end that the supervisor has been told of; then neither a Standard
  // nor a row was written. Returns whether the table has a new row. The supervisor panel shows afterwards. An
  // error with the table leaves a Standard without a row, and a note of it (see pending_product.h).
  bool Run();

private:
  // What the state is to hold of the product that the dialog describes.
  void NoteProduct();
  std::string StandardPath() const;
  bool CollectNewBackground(const std::string& prompt);
  bool CollectStandard(const std::string& prompt);
  void ShowStandard();
  void FileStandard(OpenedDocuments& opened);
  Product NewProduct() const;
  void EnterInTable();

  Bench& bench_;
  state::ProgramState& state_;
  SpectrometerSession& session_;
  FrmCollectStd& frm_collect_std_;
};

}  // namespace veritane::acquisition
