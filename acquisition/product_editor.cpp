// Loading, changing and saving the product table in its grid.
#include "acquisition/product_editor.h"

#include "acquisition/additional_file.h"
#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "shell/state/messages.h"

#include <algorithm>

namespace veritane::acquisition {

using platform::MessageAnswer;
using platform::MessageButtons;
using platform::MessageIcon;
using state::Text;
using state::TextId;

ProductEditor::ProductEditor(platform::Desktop& desktop, platform::FileSystem& files,
                             const state::ProgramState& state, Controls controls)
    : desktop_(desktop), files_(files), state_(state), controls_(controls) {}

void ProductEditor::Load() {
  is_loaded_ = false;
  try {
    LoadProductTable(files_, ProductTablePath(state_), controls_.grid);
    is_loaded_ = true;
    saved_ = Products();
  } catch (const platform::RunTimeError& error) {
    controls_.grid.Resize(1, controls_.grid.ColumnCount());
    desktop_.SetMousePointer(platform::Pointer::kDefault);
    state::PlainNotice(desktop_, Text(TextId::kProductTableUnreadable, {error.what()}),
                       MessageIcon::kCritical);
  }
  ShowCurrentRow();
}

bool ProductEditor::HasCurrentRow() const {
  const platform::Grid& grid = controls_.grid;
  return is_loaded_ && grid.Row() >= grid.FixedRows() && grid.Row() < grid.RowCount();
}

void ProductEditor::ShowCurrentRow() {
  const platform::Grid& grid = controls_.grid;
  const bool has_row = HasCurrentRow();
  const auto text = [&](Column column) { return has_row ? grid.Cell(grid.Row(), column) : std::string(); };
  const auto show = [](platform::ComboBox& combo, const std::string& item) {
    const auto& items = combo.Items();
    const auto found = std::find(items.begin(), items.end(), item);
    combo.Select(found == items.end() ? -1 : static_cast<int>(found - items.begin()));
  };
  // Showing what the row says is no choice of the user's.
  is_showing_row_ = true;
  controls_.lblCurrentProductID.SetCaption(text(kProductId));
  show(controls_.cmbCollectMethod, text(kCollectMethod));
  show(controls_.cmbAlgorithm, text(kAlgorithm));
  is_showing_row_ = false;
}

void ProductEditor::ChangeCollectMethod() {
  if (is_showing_row_ || !HasCurrentRow() || controls_.cmbCollectMethod.Selected() < 0) return;
  controls_.grid.SetCell(controls_.grid.Row(), kCollectMethod, controls_.cmbCollectMethod.SelectedItem());
}

void ProductEditor::ChangeAlgorithm() {
  if (is_showing_row_ || !HasCurrentRow() || controls_.cmbAlgorithm.Selected() < 0) return;
  platform::Grid& grid = controls_.grid;
  const std::string before = grid.Cell(grid.Row(), kAlgorithm);
  const std::string chosen = controls_.cmbAlgorithm.SelectedItem();
  grid.SetCell(grid.Row(), kAlgorithm, chosen);
  if (NeedsAdditionalFile(before) && chosen != before) grid.SetCell(grid.Row(), kAdditionalFile, "");
  if (NeedsAdditionalFile(chosen)) ChooseFile();
}

void ProductEditor::ChooseFile() {
  if (!HasCurrentRow()) return;
  platform::Grid& grid = controls_.grid;
  const auto path = ChooseAdditionalFile(desktop_, state_.folders, grid.Cell(grid.Row(), kAlgorithm));
  if (path) grid.SetCell(grid.Row(), kAdditionalFile, *path);
}

std::vector<Product> ProductEditor::Products() const {
  std::vector<Product> products;
  for (int row = controls_.grid.FixedRows(); row < controls_.grid.RowCount(); ++row) {
    const auto text = [&](Column column) { return controls_.grid.Cell(row, column); };
    products.push_back({text(kProductId), text(kCollectMethod), text(kAlgorithm), text(kAdditionalFile)});
  }
  return products;
}

bool ProductEditor::CompleteRow(int row) {
  platform::Grid& grid = controls_.grid;
  const std::string algorithm = grid.Cell(row, kAlgorithm);
  while (NeedsAdditionalFile(algorithm) && grid.Cell(row, kAdditionalFile).empty()) {
    const auto answer =
        desktop_.ShowMessage({.text = Text(TextId::kAdditionalFileRequired, {grid.Cell(row, kProductId)}),
                              .title = Text(TextId::kPlainNotice),
                              .icon = MessageIcon::kExclamation,
                              .buttons = MessageButtons::kOkCancel});
    if (answer == MessageAnswer::kCancel || desktop_.Ended()) {
      grid.SetRow(row);
      return false;
    }
    const auto path = ChooseAdditionalFile(desktop_, state_.folders, algorithm);
    if (path) grid.SetCell(row, kAdditionalFile, *path);
  }
  return true;
}

bool ProductEditor::CompleteRows(std::optional<int> but_for) {
  for (int row = controls_.grid.FixedRows(); row < controls_.grid.RowCount(); ++row) {
    if (row != but_for && !CompleteRow(row)) return false;
  }
  return true;
}

void ProductEditor::Write(std::vector<Product> products) {
  files_.WriteBytes(ProductTablePath(state_), ProductTableText(products));
  saved_ = std::move(products);
}

bool ProductEditor::Save() {
  if (!is_loaded_) return true;
  if (!CompleteRows()) return false;
  Write(Products());
  return true;
}

bool ProductEditor::SaveChanges() {
  return !is_loaded_ || Products() == saved_ || Save();
}

bool ProductEditor::MayDelete() const {
  const auto& cells = controls_.grid.Rows().at(static_cast<std::size_t>(controls_.grid.Row()));
  const bool is_empty =
      std::all_of(cells.begin(), cells.end(), [](const auto& cell) { return cell.empty(); });
  const TextId question = HasOtherRow(cells[kProductId]) ? TextId::kDeleteRow : TextId::kDeleteProduct;
  return is_empty || desktop_.ShowMessage({.text = Text(question, {cells[kProductId]}),
                                           .title = Text(TextId::kDeleteProductTitle),
                                           .icon = MessageIcon::kQuestion,
                                           .buttons = MessageButtons::kYesNo}) == MessageAnswer::kYes;
}

bool ProductEditor::HasOtherRow(const std::string& product_id) const {
  const std::vector<Product> products = Products();
  return std::count_if(products.begin(), products.end(), [&](const Product& product) {
           return platform::UpperCase(product.productId) == platform::UpperCase(product_id);
         }) > 1;
}

void ProductEditor::DeleteFiles(const std::string& product_id) {
  const std::string in_samples = state_.folders.InSamples(platform::LeafName(product_id));
  // The first lies in the current directory, not among the Standards: whoever deletes a product for good
  // removes its Standard there by hand.
  for (const std::string& path : {product_id + ".bsp", in_samples + ".bsp", in_samples + ".his"}) {
    if (files_.FileExists(path)) files_.DeleteFile(path);
  }
}

void ProductEditor::DeleteProduct() {
  constexpr int kHeaderAndLastProduct = 2;
  platform::Grid& grid = controls_.grid;
  if (grid.RowCount() <= kHeaderAndLastProduct || !HasCurrentRow() || !MayDelete()) return;
  const int row = grid.Row();
  if (!CompleteRows(row)) return;
  const std::string product_id = grid.Cell(row, kProductId);
  // The files go last: while the table cannot be written, the product keeps them.
  const bool goes_with_files = !product_id.empty() && !HasOtherRow(product_id);
  std::vector<Product> products = Products();
  products.erase(products.begin() + (row - grid.FixedRows()));
  Write(std::move(products));
  grid.RemoveRow(row);
  ShowCurrentRow();
  if (goes_with_files) DeleteFiles(product_id);
}

}  // namespace veritane::acquisition
