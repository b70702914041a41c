// Recognising a list by its content, in any encoding, and reading it as what it is.
#include "formats/list_format.h"

#include "listed.h"

using namespace Fuzz;
using namespace Formats;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const ListText text(input.Text());
  const ListFormat* format = FormatOf(text.View());
  if (format == nullptr) return 0;
  Require(format->Recognised(text.View()), "a format recognises what it reads");
  Require(format->Services != nullptr || format->Transponders != nullptr || format->OrderOf != nullptr,
          "a format holds something");
  Input none(nullptr, 0);
  if (format->Services != nullptr) CheckServices(none, [&] { return format->Services(text.View()); });
  if (format->Transponders != nullptr) static_cast<void>(format->Transponders(text.View()));
  if (format->OrderOf != nullptr) static_cast<void>(format->OrderOf(text.View()));
  return 0;
}
