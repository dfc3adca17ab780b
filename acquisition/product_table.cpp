// Reading, searching, writing and showing the product table.
#include "acquisition/product_table.h"

#include "platform/number_text.h"
#include "platform/text_file.h"
#include "platform/windows_path.h"
#include "shell/state/string_table.h"

#include <algorithm>

namespace veritane::acquisition {

namespace {

using platform::TextReader;
using state::Text;
using state::TextId;

constexpr int kColumns = 4;

Product ReadRow(TextReader& reader) {
  Product product;
  product.productId = reader.ReadField();
  product.collectMethod = reader.ReadField();
  product.algorithm = reader.ReadField();
  // A last line without its line end may have nothing behind its last comma.
  product.additionalFile = reader.AtEnd() ? "" : reader.ReadField();
  return product;
}

// A field that would not read back as it stands is put in quotes: one cut by a comma or a line end, or with
// blanks around it.
std::string FieldText(const std::string& field) {
  constexpr std::string_view kBlanks = " \t";
  const bool is_padded = !field.empty() && (kBlanks.find(field.front()) != std::string_view::npos ||
                                            kBlanks.find(field.back()) != std::string_view::npos);
  const bool is_cut = field.find_first_of(",\r\n") != std::string::npos;
  return is_padded || is_cut ? "\"" + field + "\"" : field;
}

}  // namespace

std::string ProductTablePath(const state::ProgramState& state) {
  return state.folders.appDir + state.folderSet.methTable;
}

std::vector<Product> ReadProductTable(std::string_view bytes, const std::string& path) {
  TextReader reader(bytes, path);
  const int count = reader.ReadInt16();
  std::vector<Product> products;
  products.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (int row = 0; row < count; ++row) products.push_back(ReadRow(reader));
  return products;
}

std::optional<Product> FindProduct(std::string_view bytes, const std::string& key, const std::string& path) {
  const std::string wanted = platform::UpperCase(key);
  TextReader reader(bytes, path);
  const int count = reader.ReadInt16();
  for (int row = 0; row < count; ++row) {
    Product product = ReadRow(reader);
    if (platform::UpperCase(product.productId) == wanted) return product;
  }
  return std::nullopt;
}

std::string ProductTableText(const std::vector<Product>& products) {
  std::string text = platform::CountText(static_cast<long long>(products.size())).append(platform::kLineEnd);
  for (const Product& product : products) {
    text.append(FieldText(product.productId) + "," + FieldText(product.collectMethod) + "," +
                FieldText(product.algorithm) + "," + FieldText(product.additionalFile))
        .append(platform::kLineEnd);
  }
  return text;
}

std::vector<Product> AppendProduct(platform::FileSystem& files, const std::string& path,
                                   const Product& product) {
  std::vector<Product> products = ReadProductTable(files.ReadBytes(path), path);
  products.push_back(product);
  files.WriteBytes(path, ProductTableText(products));
  return products;
}

void LoadProductTable(const platform::FileSystem& files, const std::string& path, platform::Grid& grid) {
  std::vector<std::vector<std::string>> rows;
  for (Product& product : ReadProductTable(files.ReadBytes(path), path)) {
    rows.push_back({std::move(product.productId), std::move(product.collectMethod),
                    std::move(product.algorithm), std::move(product.additionalFile)});
  }
  grid.Resize(1, kColumns);
  grid.SetFormat("<" + Text(TextId::kProductIdHeader) + "  |<" + Text(TextId::kCollectMethodHeader) + "  |<" +
                 Text(TextId::kAlgorithmHeader) + " |<" + Text(TextId::kFileNameHeader));
  grid.SetBody(std::move(rows));
  if (grid.RowCount() < 2) return;
  grid.SetCurrentCell(1, 0);
}

}  // namespace veritane::acquisition
