// trovalis_bench [--curve=FILE.png] [options of Google Benchmark]: prints the table, and draws the curves.
#include "groups.h"
#include "report.h"
#include "ui/kit/toolkit.h"

#include <QApplication>
#include <QLoggingCategory>

#include <string>
#include <vector>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // A window without a screen says at each showing what it cannot do.
  QLoggingCategory::setFilterRules("default.warning=false");
  QApplication application(argc, argv);
  Ui::SetUpToolkit(application);
  const std::string option = "--curve=";
  QString picture;
  std::vector<char*> others;
  for (int i = 0; i < argc; ++i) {
    if (std::string(argv[i]).starts_with(option)) {
      picture = QString::fromLocal8Bit(argv[i] + option.size());
    } else {
      others.push_back(argv[i]);
    }
  }
  int count = static_cast<int>(others.size());
  benchmark::Initialize(&count, others.data());
  if (benchmark::ReportUnrecognizedArguments(count, others.data())) return 1;
  Bench::RegisterCore();
  Bench::RegisterWindow();
  Bench::RegisterStarts();
  Bench::RegisterGrowth();
  Bench::Report report;
  benchmark::RunSpecifiedBenchmarks(&report);
  return picture.isEmpty() || report.Draw(picture) ? 0 : 1;
}
