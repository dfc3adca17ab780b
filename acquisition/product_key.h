// The part of a Product ID that names the product.
#pragma once

#include <string>

#include "platform/file_system.h"
#include "shell/state/data_folders.h"

namespace veritane::acquisition {

// Cuts the product key out of a Product ID as "ProductID.par" of the Standards folder says (start counted
// from 1, and length, in characters). Without that file the whole Product ID is the key. Error 5 for a start
// below 1 or a negative length.
std::string ProductKey(const platform::FileSystem& files, const state::DataFolders& folders,
                       const std::string& product_id);

}  // namespace veritane::acquisition
