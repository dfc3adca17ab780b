// A product whose Standard is filed and whose row may not be: noted before the one and forgotten behind the
// other, so that a program that ends in between leaves nothing that nobody knows of.
#pragma once

#include "acquisition/bench.h"
#include "acquisition/product_table.h"

namespace veritane::acquisition {

void NotePendingProduct(platform::FileSystem& files, const state::DataFolders& folders,
                        const Product& product);
void ForgetPendingProduct(platform::FileSystem& files, const state::DataFolders& folders);

// Asks the supervisor about a Standard that was left without its row: its product enters the table, or the
// Standard gives its name away for a new one. Returns whether the table has a new row.
bool SettlePendingProduct(Bench& bench);

}  // namespace veritane::acquisition
