// Noting, forgetting and settling.
#include "acquisition/pending_product.h"

#include "shell/state/string_table.h"

namespace veritane::acquisition {

using state::Text;
using state::TextId;

namespace {

std::string PendingPath(const state::DataFolders& folders) {
  return folders.InStandards("Pending.tbl");
}

// The first free name of those under which an abandoned Standard is kept.
std::string NameToKeepUnder(const platform::FileSystem& files, const state::DataFolders& folders,
                            const std::string& product_id) {
  for (int number = 1;; ++number) {
    std::string path = folders.InStandards(product_id + " (abandoned " + std::to_string(number) + ").bsp");
    if (!files.FileExists(path)) return path;
  }
}

bool Settle(Bench& bench, const Product& product) {
  platform::FileSystem& files = bench.machine.files;
  const state::DataFolders& folders = bench.state.folders;
  const std::string standard = folders.InStandards(product.productId + ".bsp");
  const std::string table = ProductTablePath(bench.state);
  if (!files.FileExists(standard) || FindProduct(files.ReadBytes(table), product.productId, table))
    return false;
  const std::string kept = NameToKeepUnder(files, folders, product.productId);
  const auto answer = bench.desktop.ShowMessage(
      {.text = Text(TextId::kStandardWithoutRow,
                    {standard, product.productId, product.collectMethod, product.algorithm, kept}),
       .title = Text(TextId::kPlainNotice),
       .icon = platform::MessageIcon::kQuestion,
       .buttons = platform::MessageButtons::kYesNo});
  if (answer == platform::MessageAnswer::kYes) {
    AppendProduct(files, table, product);
    return true;
  }
  files.MoveFile(standard, kept);
  return false;
}

}  // namespace

void NotePendingProduct(platform::FileSystem& files, const state::DataFolders& folders,
                        const Product& product) {
  files.WriteBytes(PendingPath(folders), ProductTableText({product}));
}

void ForgetPendingProduct(platform::FileSystem& files, const state::DataFolders& folders) {
  files.DeleteFile(PendingPath(folders));
}

bool SettlePendingProduct(Bench& bench) {
  platform::FileSystem& files = bench.machine.files;
  const std::string path = PendingPath(bench.state.folders);
  if (!files.FileExists(path)) return false;
  bool has_new_row = false;
  for (const Product& product : ReadProductTable(files.ReadBytes(path), path)) {
    has_new_row = Settle(bench, product) || has_new_row;
  }
  ForgetPendingProduct(files, bench.state.folders);
  return has_new_row;
}

}  // namespace veritane::acquisition
