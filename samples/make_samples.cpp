// Writes the demo flash and the demo SatcoDX list: make_samples SR.INI OUTPUT_FOLDER
#include "base/file.h"
#include "demo_flash.h"
#include "demo_sdx.h"
#include "support/sr_ini.h"

#include <cstdio>

namespace {

int Fail(const Base::Error& error) {
  std::fprintf(stderr, "%s\n", error.message.c_str());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("make_samples SR.INI OUTPUT_FOLDER\n", stderr);
    return 2;
  }
  const auto rates = Base::ReadFile(argv[1], 1U << 20U);
  if (!rates) return Fail(rates.error());
  const auto table = Support::SymbolRatesOf(Base::AsText(*rates), Routines::Sr22000::Come2);
  if (!table) return Fail(table.error());
  const std::string folder = argv[2];
  const auto flash = Base::ReplaceFile(folder + "/demo.dat", Samples::DemoFlash(*table));
  if (!flash) return Fail(flash.error());
  const auto list = Base::ReplaceFile(folder + "/demo.sdx", Base::AsBytes(Samples::DemoSdx()));
  return list ? 0 : Fail(list.error());
}
