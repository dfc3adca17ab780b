// The product table while a supervisor edits it. Between loading and saving the grid is the only copy of what
// was changed.
#pragma once

#include "acquisition/product_table.h"
#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/file_system.h"
#include "platform/grid.h"
#include "shell/state/program_state.h"

#include <optional>
#include <string>
#include <vector>

namespace veritane::acquisition {

class ProductEditor {
public:
  // The grid, and the "Current Selection" beside it.
  struct Controls {
    platform::Grid& grid;
    platform::Label& lblCurrentProductID;
    platform::ComboBox& cmbCollectMethod;
    platform::ComboBox& cmbAlgorithm;
  };

  ProductEditor(platform::Desktop& desktop, platform::FileSystem& files, const state::ProgramState& state,
                Controls controls);

  // Reads the table into the grid. A table that cannot be read is told of and leaves the grid empty; such a
  // table is never written over.
  void Load();

  // Writes the table from the grid. Every product whose algorithm needs an additional file is asked for one
  // until it has it. False when the user broke that off: nothing was written then, and the product in
  // question is the current row.
  bool Save();
  // The same, but leaves the file alone when nothing was changed since it was loaded or saved.
  bool SaveChanges();

  void ShowCurrentRow();
  void ChangeCollectMethod();
  void ChangeAlgorithm();
  void ChooseFile();
  // Deletes the current product with its files, after a question; where another row has its Product ID, the
  // row alone. The last product stays.
  void DeleteProduct();

private:
  enum Column : int { kProductId, kCollectMethod, kAlgorithm, kAdditionalFile };

  bool HasCurrentRow() const;
  std::vector<Product> Products() const;
  bool CompleteRow(int row);
  // False when the user broke off.
  bool CompleteRows(std::optional<int> but_for = std::nullopt);
  void Write(std::vector<Product> products);
  bool MayDelete() const;
  // Whether more than one row has this Product ID; files belong to all of them.
  bool HasOtherRow(const std::string& product_id) const;
  void DeleteFiles(const std::string& product_id);

  platform::Desktop& desktop_;
  platform::FileSystem& files_;
  const state::ProgramState& state_;
  Controls controls_;
  bool is_loaded_ = false;
  bool is_showing_row_ = false;
  // What the file holds.
  std::vector<Product> saved_;
};

}  // namespace veritane::acquisition
