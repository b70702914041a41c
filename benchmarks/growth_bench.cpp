// How the work grows with the list: the points of the curves.
#include "bench_windows.h"
#include "beside.h"
#include "formats/satcodx.h"
#include "formats/text_format.h"
#include "full_list.h"
#include "groups.h"
#include "model/flash_loader.h"

namespace Bench {
namespace {

void LoadRows(benchmark::State& run) {
  const auto rows = static_cast<int>(run.range(0));
  const Base::Bytes image = Image(rows);
  const auto state = List(rows);
  RunPoint(run, rows, [&] { Routines::LoadFlash(*state, image, rows, 0, Bouquets()); });
}

void ImportRows(benchmark::State& run) {
  const auto rows = static_cast<int>(run.range(0));
  const auto state = List(rows);
  const std::string text = Formats::WriteText(*state);
  RunPoint(run, rows, [&] { Formats::ReadText(*state, text, "lista.txt", Bouquets()); });
}

void RepaintRows(benchmark::State& run) {
  const auto rows = static_cast<int>(run.range(0));
  ListWindow window(rows);
  window.OpenFlash();
  Settle();
  RunPoint(run, rows, [&] { RepaintCells(window.Grid()); });
}

void ReadSdxLines(benchmark::State& run) {
  const auto lines = static_cast<int>(run.range(0));
  const std::string text = SatcodxText(lines, lines / 250);
  Formats::SdxOptions options;
  options.codes = {"____"};
  RunPoint(run, lines, [&] { benchmark::DoNotOptimize(Formats::ReadSatcodx(text, options).rows.data()); });
}

}  // namespace

void RegisterGrowth() {
  const std::pair<const char*, void (*)(benchmark::State&)> curves[] = {
      {"caricare un'immagine, per canali", LoadRows},
      {"importare da testo, per canali", ImportRows},
      {"ridisegnare una pagina, per righe della lista", RepaintRows}};
  for (const auto& [name, function] : curves) {
    auto* curve = benchmark::RegisterBenchmark(name, function)->UseManualTime();
    for (const int rows : {250, 500, 1000, 1500, 2000, 3000, Channels}) curve->Arg(rows);
  }
  auto* curve = benchmark::RegisterBenchmark("leggere un .sdx, per righe", ReadSdxLines)->UseManualTime();
  for (const int lines : {10000, 100000, 250000, 500000, 750000, 1000000}) curve->Arg(lines);
}

}  // namespace Bench
