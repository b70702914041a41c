// What the model test feeds to the window: numbers, words and images of any kind, and answers to its questions.
#pragma once

#include "image_builder.h"
#include "model/routines.h"
#include "support/test_folder.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"

#include <random>

namespace Ui {

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  unsigned Next() { return static_cast<unsigned>(engine_()); }
  int Below(int bound) { return bound > 0 ? static_cast<int>(Next() % static_cast<unsigned>(bound)) : 0; }
  bool Chance(int percent) { return Below(100) < percent; }
  template <class List>
  const auto& Pick(const List& list) {
    return list[static_cast<decltype(list.size())>(Below(static_cast<int>(list.size())))];
  }
  QString Number(int last) {
    const QStringList odd = {"", "0", "-3", "x", " 7", "65536", "99999999999", QString::number(last)};
    return Chance(25) ? Pick(odd) : QString::number(1 + Below(last));
  }
  QString Words() {
    static const QStringList texts = {"Città", "a",  "ARTE|x", "<b>", "",      "中",
                                      "A4",    "12", "S",      "H",   "11766", "Nome lunghissimo"};
    return Pick(texts);
  }
  template <class Record>
  void Fill(Record& record) {
    for (auto& byte : record.bytes) byte = static_cast<Base::Byte>(Next());
  }

 private:
  std::mt19937 engine_;
};

// Sections of any size at any place, good records among junk; now and then a directory or a length that is wrong.
inline Base::Bytes RandomImage(Random& random) {
  Samples::ImageBuilder image(random.Next());
  std::vector<Routines::TransponderRecord> transponders;
  for (int i = random.Below(300); i > 0; --i) {
    auto& record = transponders.emplace_back(
        Samples::MakeTransponder(10600 + random.Below(2300), random.Chance(50), random.Below(4),
                                 random.Below(16), random.Below(7), random.Below(65536), random.Below(400)));
    if (random.Chance(5)) random.Fill(record);
  }
  image.PutRecords(1, 1, 16 + static_cast<std::size_t>(random.Below(3000)), "TPT", transponders);
  const int most = random.Chance(30) ? 2000 : 60;
  for (std::size_t sector = 2; sector < 5; ++sector) {
    std::vector<Routines::ChannelRecord> channels;
    for (int i = random.Below(most); i > 0; --i) {
      auto& record = channels.emplace_back(Samples::MakeChannel(
          "C" + std::to_string(random.Below(200)), random.Below(256), random.Below(500),
          random.Chance(30) ? 65535 : random.Below(9000), random.Chance(20) ? 65535 : random.Below(9000)));
      if (random.Chance(5)) random.Fill(record);
      if (random.Chance(10)) record = {};
    }
    image.PutRecords(sector, 0, 16 + static_cast<std::size_t>(random.Below(4000)), "TCS", channels);
  }
  Base::Bytes block(random.Chance(80) ? Routines::NormalFavouritesSize
                                      : static_cast<std::size_t>(random.Below(6000)));
  for (std::size_t at = 0; at + 1 < block.size(); at += 2) {
    if (random.Chance(20)) continue;
    const int slot = random.Below(random.Chance(90) ? 3 * most : 65536);
    block[at] = static_cast<Base::Byte>(slot >> 8);
    block[at + 1] = static_cast<Base::Byte>(slot & 255);
  }
  if (random.Chance(85)) image.PutFavourites(5, 2, 100, block, static_cast<std::size_t>(random.Below(500)));
  if (random.Chance(20))
    image.SetDirectory(1 + static_cast<std::size_t>(random.Below(8)), 5, random.Next() & 65535U);
  if (random.Chance(20)) image.SetLength(2, 16, random.Next() & 65535U);
  return image.Image();
}

class RandomAnswers : public Dialogs {
 public:
  RandomAnswers(Random& random, const Tests::TestFolder& folder) : random_(random), folder_(folder) {}

  void Message(const QString&, const QString&, Tone) override {}
  bool RepeatedMessage(const QString&) override { return random_.Chance(50); }
  bool YesNo(const QString&) override { return yes = random_.Chance(50), ++questions, yes; }
  bool FinalYesNo(const QString&) override { return random_.Chance(50); }
  Answer YesNoCancel(const QString&) override {
    return random_.Pick(std::vector{Answer::Yes, Answer::No, Answer::Cancel});
  }
  bool OkCancel(const QString&) override { return random_.Chance(50); }
  std::optional<QString> AskLine(const QString&) override {
    if (random_.Chance(10)) return std::nullopt;
    return random_.Chance(80) ? random_.Number(random_.Chance(50) ? 60 : 4000) : random_.Words();
  }
  std::optional<int> Choose(const QString&, const QStringList& choices, int) override {
    return random_.Chance(10) ? std::nullopt : std::optional(random_.Below(static_cast<int>(choices.size())));
  }
  QString OpenFile(const FileQuestion& question) override {
    if (random_.Chance(10)) return {};
    for (const QString ending : {"dat", "sdx", "txt", "fls"}) {
      if (question.filters.contains("*." + ending)) return File(ending);
    }
    return File("dat");
  }
  QString SaveFile(const FileQuestion& question) override {
    if (random_.Chance(10)) return {};
    return File(question.filters.contains("*.pdf")   ? "pdf"
                : question.filters.contains("*.fls") ? "fls"
                                                     : "txt");
  }

  int questions = 0;
  bool yes = false;

 private:
  QString File(const QString& ending) {
    static const QStringList names = {"1", "2", "3", "1", "2", "odd"};
    return PathText(folder_.Path((random_.Pick(names) + "." + ending).toStdString()));
  }

  Random& random_;
  const Tests::TestFolder& folder_;
};

}  // namespace Ui
