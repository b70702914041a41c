// The lists of today that can be read. A list's format is recognised by what is in it, never by its file's name.
#pragma once

#include "base/bytes.h"
#include "formats/order_list.h"

#include <memory>
#include <span>

namespace Formats {

// A list's bytes as the readers take them: without a byte-order mark, UTF-16 as bytes of the code page, lines that end with
// LF or CR LF. Other bytes are not copied but must stay; names become bytes of the code page when they are read.
class ListText {
 public:
  explicit ListText(std::string_view bytes);
  ListText(const ListText&) = delete;
  ListText& operator=(const ListText&) = delete;

  [[nodiscard]] std::string_view View() const { return view_; }

 private:
  std::string own_;
  std::string_view view_;
};

struct ListFormat {
  std::string_view id;
  std::string_view title;
  bool (*Recognised)(std::string_view text);
  // Null where a list of this format holds none. The text must stay as long as the reader does.
  std::unique_ptr<ServiceReader> (*Services)(std::string_view text);
  TransponderList (*Transponders)(std::string_view text);
  Order (*OrderOf)(std::string_view text);
};

// In the order in which they are tried. The first one that recognises a text reads it.
std::span<const ListFormat> ListFormats();

// The format of a text; null where it is none of these.
const ListFormat* FormatOf(std::string_view text);

// The order in a file: of a flash image, of a SatcoDX list, of one of these lists, or of names alone, which the bytes of no other file are.
// Empty where there is none.
Order OrderInFile(Base::ByteView bytes);

}  // namespace Formats
