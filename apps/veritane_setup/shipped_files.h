// The text files of data/, held inside the set-up program so that it needs nothing beside itself.
#pragma once

#include <string>
#include <vector>

namespace veritane::setup {

struct ShippedFile {
  // Below data/, with "/" between names.
  std::string name;
  std::string bytes;
};

const std::vector<ShippedFile>& ShippedFiles();

}  // namespace veritane::setup
