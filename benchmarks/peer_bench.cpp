// Reading a list beside another program that reads it, where that one is installed or unpacked by scripts/real-lists.
#include "base/file.h"
#include "beside.h"
#include "formats/dvbv5.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdlib>

namespace Bench {
namespace {

constexpr const char* Program = "dvb-format-convert";

QString Converter() {
  const QString unpacked = QString(LISTS_FOLDER "/usr/bin/") + Program;
  const QString installed = QStandardPaths::findExecutable(Program);
  return installed.isEmpty() && QFileInfo(unpacked).isExecutable() ? unpacked : installed;
}

std::string DvbV5List(int services) {
  std::string list;
  for (int i = 0; i < services; ++i) {
    const std::string number = std::to_string(i);
    list += "[Canale " + number + "]\n\tSERVICE_ID = " + number + "\n\tVIDEO_PID = 101\n\tAUDIO_PID = 102\n" +
            "\tFREQUENCY = " + std::to_string(10700 + i % 2000) +
            "000\n\tMODULATION = QPSK\n\tINVERSION = AUTO\n\tSYMBOL_RATE = 27500000\n\tINNER_FEC = 3/4\n"
            "\tPOLARIZATION = VERTICAL\n\tDELIVERY_SYSTEM = DVBS\n\n";
  }
  return list;
}

// The program needs a file to write to as well; its time is told without that of starting it, by a list of one service.
double SecondsOfConverter(const QString& list) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("LD_LIBRARY_PATH", LISTS_FOLDER "/usr/lib/x86_64-linux-gnu");
  process.setProcessEnvironment(environment);
  return SecondsOf([&] {
    process.start(Converter(), {"-I", "DVBV5", "-O", "DVBV5", list, "/dev/null"});
    if (!process.waitForFinished() || process.exitCode() != 0) std::abort();
  });
}

int ServicesIn(const std::string& path) {
  const auto bytes = Base::ReadFile(path, 1U << 28U);
  if (!bytes) std::abort();
  Formats::DvbV5Reader reader(Base::AsText(*bytes));
  int services = 0;
  while (reader.Read()) services += reader.Service().valid ? 1 : 0;
  return services;
}

void ReadBesideConverter(benchmark::State& run) {
  constexpr int Services = 20000;
  const QTemporaryDir folder;
  const auto write = [&](const char* name, int services) {
    std::string path = folder.filePath(name).toStdString();
    const std::string list = DvbV5List(services);
    if (!Base::ReplaceFile(path, Base::AsBytes(list))) std::abort();
    return path;
  };
  const std::string one = write("one", 1), all = write("all", Services);
  std::vector<double> works, limits;
  for ([[maybe_unused]] auto _ : run) {
    const double start = SecondsOfConverter(QString::fromStdString(one));
    limits.push_back(1e6 * (SecondsOfConverter(QString::fromStdString(all)) - start));
    works.push_back(1e6 * SecondsOf([&] {
                      if (ServicesIn(all) != Services) std::abort();
                    }));
    run.SetIterationTime(works.back() / 1e6);
  }
  Tell(run, works, limits);
}

}  // namespace

void RegisterPeers() {
  if (!Converter().isEmpty())
    Register({{"DVBv5 di 20.000 servizi, e `dvb-format-convert`", 1, ReadBesideConverter, 11}});
}

}  // namespace Bench
