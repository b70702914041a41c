// Writes the demo flash: make_samples SR.INI OUTPUT.dat
#include "base/file.h"
#include "demo_flash.h"
#include "support/sr_ini.h"

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("make_samples SR.INI OUTPUT.dat\n", stderr);
    return 2;
  }
  const auto rates = Base::ReadFile(argv[1], 1U << 20U);
  if (!rates) {
    std::fprintf(stderr, "%s\n", rates.error().message.c_str());
    return 1;
  }
  const auto table = Support::SymbolRatesOf(Base::AsText(*rates), Routines::Sr22000::Come2);
  if (!table) {
    std::fprintf(stderr, "%s\n", table.error().message.c_str());
    return 1;
  }
  const auto written = Base::ReplaceFile(argv[2], Samples::DemoFlash(*table));
  if (!written) {
    std::fprintf(stderr, "%s\n", written.error().message.c_str());
    return 1;
  }
  return 0;
}
