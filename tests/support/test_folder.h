// A folder of its own for a test, gone with it, and the little that tests do with files.
#pragma once

#include "base/bytes.h"
#ifndef _WIN32
#include "support/limits.h"
#endif

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace Tests {

class TestFolder {
 public:
  TestFolder() {
    if (!std::filesystem::create_directory(path_)) std::abort();
    std::filesystem::permissions(path_, std::filesystem::perms::all);
  }
  ~TestFolder() {
    std::filesystem::permissions(path_, std::filesystem::perms::all);
    std::filesystem::remove_all(path_);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  [[nodiscard]] std::string Path(std::string_view name = {}) const {
    constexpr auto Separator = static_cast<char>(std::filesystem::path::preferred_separator);
    return name.empty() ? path_ : path_ + Separator + std::string(name);
  }
  // Writes a file that anybody may read and write and returns its path.
  std::string Write(std::string_view name, Base::ByteView bytes) const {
    std::string path = Path(name);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    std::filesystem::permissions(path, static_cast<std::filesystem::perms>(0666));
    return path;
  }
  std::string Write(std::string_view name, std::string_view text) const {
    return Write(name, Base::AsBytes(text));
  }
  // How many files of any name are in the folder.
  [[nodiscard]] int Files() const {
    const std::filesystem::directory_iterator entries(path_);
    return static_cast<int>(std::distance(begin(entries), end(entries)));
  }

 private:
  std::string path_ =
      (std::filesystem::temp_directory_path() / ("trovalis-test-" + std::to_string(std::random_device()())))
          .string();
};

inline Base::Bytes Contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace Tests
