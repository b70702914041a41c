// What the model test feeds to the window: numbers, words and images of any kind, and answers to its questions.
#pragma once

#include "ui/window_fixture.h"

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

 private:
  std::mt19937 engine_;
};

// The small list with bytes that are wrong: in directories, entries, records and favourites.
inline Base::Bytes RandomImage(Random& random) {
  Base::Bytes image = SmallFlash();
  for (int i = random.Below(random.Chance(50) ? 60 : 3000); i > 0; --i) {
    const int place = random.Chance(5) ? random.Below(16) : 52 + random.Below(2400);
    image[static_cast<std::size_t>(1 + random.Below(4)) * 65536 + static_cast<std::size_t>(place)] =
        static_cast<Base::Byte>(random.Next());
  }
  return image;
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
  std::optional<QString> AskLine(const QString&, const QString&) override {
    if (random_.Chance(10)) return std::nullopt;
    return random_.Chance(80) ? random_.Number(random_.Chance(50) ? 60 : 4000) : random_.Words();
  }
  std::optional<int> Choose(const QString&, const QStringList& choices, int) override {
    return random_.Chance(10) ? std::nullopt : std::optional(random_.Below(static_cast<int>(choices.size())));
  }
  QString OpenFile(const FileQuestion& question) override {
    if (random_.Chance(10)) return {};
    for (const QString ending : {"dat", "sdx", "txt", "fls"})
      if (question.filters.contains("*." + ending)) return File(ending);
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
