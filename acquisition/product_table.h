// The product table: one row a product, with its collect method, algorithm and additional file.
#pragma once

#include "platform/file_system.h"
#include "platform/grid.h"
#include "shell/state/program_state.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veritane::acquisition {

struct Product {
  std::string productId;
  std::string collectMethod;  // short name
  std::string algorithm;
  std::string additionalFile;  // calibration or peak file, else ""
  bool operator==(const Product&) const = default;
};

// Where the table lies.
std::string ProductTablePath(const state::ProgramState& state);

// All rows of the table's text; `path` is for the text of errors. Error 62 when the text ends before the
// counted rows, 13 when the count is no number.
std::vector<Product> ReadProductTable(std::string_view bytes, const std::string& path = "");

// The first row whose Product ID is `key`, without regard to case. Rows behind it are not read.
std::optional<Product> FindProduct(std::string_view bytes, const std::string& key,
                                   const std::string& path = "");

// The table's text: the count, then a line a product. A field that holds a comma or a line end, or has blanks
// around it, stands in double quotes, which keeps its row whole.
std::string ProductTableText(const std::vector<Product>& products);

// Writes the table with one more row and returns all rows.
std::vector<Product> AppendProduct(platform::FileSystem& files, const std::string& path,
                                   const Product& product);

// Shows the table in the grid: header, one row a product, the first product current.
void LoadProductTable(const platform::FileSystem& files, const std::string& path, platform::Grid& grid);

}  // namespace veritane::acquisition
