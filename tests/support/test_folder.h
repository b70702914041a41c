// A folder of its own for a test, gone with it, and the little that tests do with files.
#pragma once

#include "base/bytes.h"
#ifndef _WIN32
#include "support/limits.h"
#endif

#include <cstdlib>
#include <string>
#include <string_view>

namespace Tests {

class TestFolder {
 public:
  TestFolder();
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  [[nodiscard]] std::string Path(std::string_view name = {}) const;
  // Writes a file and returns its path.
  std::string Write(std::string_view name, Base::ByteView bytes) const;
  std::string Write(std::string_view name, std::string_view text) const;
  // How many files of any name are in the folder.
  [[nodiscard]] int Files() const;

 private:
  std::string path_;
};

Base::Bytes Contents(const std::string& path);

}  // namespace Tests
