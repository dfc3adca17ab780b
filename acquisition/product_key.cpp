// Applying the Product ID parser.
#include "acquisition/product_key.h"

#include "platform/run_time_error.h"
#include "platform/text_file.h"
#include "platform/utf8.h"

namespace veritane::acquisition {

std::string ProductKey(const platform::FileSystem& files, const state::DataFolders& folders,
                       const std::string& product_id) {
  const std::string path = folders.InStandards("ProductID.par");
  if (!files.FileExists(path)) return product_id;
  platform::TextReader reader(files.ReadBytes(path), path);
  const int start = reader.ReadInt16();
  const int length = reader.ReadInt16();
  if (start < 1 || length < 0) throw platform::RunTimeError(platform::ErrorNumber::kInvalidCall, path);
  return platform::Characters(product_id, static_cast<std::size_t>(start - 1),
                              static_cast<std::size_t>(length));
}

}  // namespace veritane::acquisition
