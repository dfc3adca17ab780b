// The part of a Product ID that names the product: its definition, and cutting it out.
#pragma once

#include "platform/machine.h"
#include "shell/state/data_folders.h"

#include <string>

namespace veritane::acquisition {

// Cuts the product key out of a Product ID as "ProductID.par" of the Standards folder says (start counted
// from 1, and length, in characters). Without that file the whole Product ID is the key. Error 5 for a start
// below 1 or a negative length.
std::string ProductKey(const platform::FileSystem& files, const state::DataFolders& folders,
                       const std::string& product_id);

// Defines the part by example: `part` at its first occurrence in `example` (which must hold it). The
// definition lies below what `system` gives for the program's own folder, in a Standards folder that is
// made when it is missing; ProductKey reads the data folder. In an installation the one stands for the other
// and the definition is in force at once; a site that keeps the two apart copies the file.
void DefineProductKey(platform::FileSystem& files, const platform::ShellFolders& system,
                      const state::FolderSet& set, const std::string& example, const std::string& part);

// Takes the definition back; nothing happens when there is none.
void DeleteProductKeyDefinition(platform::FileSystem& files, const platform::ShellFolders& system,
                                const state::FolderSet& set);

}  // namespace veritane::acquisition
