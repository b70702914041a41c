#include "support/test_folder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace Tests {

using std::filesystem::perms;

TestFolder::TestFolder() {
  const std::string name = "trovalis-test-" + std::to_string(std::random_device()());
  path_ = (std::filesystem::temp_directory_path() / name).string();
  if (!std::filesystem::create_directory(path_)) std::abort();
  std::filesystem::permissions(path_, perms::all);
}

TestFolder::~TestFolder() {
  std::filesystem::permissions(path_, perms::all);
  std::filesystem::remove_all(path_);
}

std::string TestFolder::Path(std::string_view name) const {
  return name.empty() ? path_ : path_ + "/" + std::string(name);
}

std::string TestFolder::Write(std::string_view name, Base::ByteView bytes) const {
  std::string path = Path(name);
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  file.close();
  constexpr perms ForReading = perms::owner_read | perms::group_read | perms::others_read;
  std::filesystem::permissions(path,
                               ForReading | perms::owner_write | perms::group_write | perms::others_write);
  return path;
}

std::string TestFolder::Write(std::string_view name, std::string_view text) const {
  return Write(name, Base::AsBytes(text));
}

int TestFolder::Files() const {
  const std::filesystem::directory_iterator entries(path_);
  return static_cast<int>(std::distance(begin(entries), end(entries)));
}

Base::Bytes Contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace Tests
