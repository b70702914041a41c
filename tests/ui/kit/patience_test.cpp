#include "ui/kit/patience.h"

#include "base/file.h"
#include "ui/window_fixture.h"

#include <future>

namespace Ui {
namespace {

// Work that waits until it is told to go on, as a disk lets a program wait.
struct SlowDisk {
  std::promise<void> goOn;
  std::shared_future<void> ready = goOn.get_future().share();
};

QProgressDialog* Box() {
  auto* box = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
  return box != nullptr && box->objectName() == "OperazioneInCorso" ? box : nullptr;
}

// What is done as soon as there is the box.
void InTheBox(const std::function<void(QProgressDialog&)>& act) {
  auto* look = new QTimer;
  QObject::connect(look, &QTimer::timeout, [look, act] {
    if (Box() == nullptr) return;
    look->deleteLater();
    look->stop();
    act(*Box());
  });
  look->start(10);
}

void GiveUp(const QProgressDialog& box) {
  QTest::mouseClick(box.findChild<QPushButton*>("AnnullaOperazione"), Qt::LeftButton);
}

class Patience : public Window {};

}  // namespace

TEST_F(Patience, SlowReadingIsGivenUpAndNothingElseBeginsMeanwhile) {
  const int channels = List().ChannelCount;
  SlowDisk disk;
  InTheBox([&](QProgressDialog& box) {
    EXPECT_EQ(box.findChild<QLabel*>()->text(), "Lettura di lista.dat…");
    EXPECT_TRUE(box.isModal());
    for (const char* command : {"Azzera", "Salva", "Toolbar1_Delete"})
      window_->findChild<QAction*>(command)->trigger();
    EXPECT_EQ(Said(), "Lettura di lista.dat: prima attenderne la fine, o annullare l'operazione");
    GiveUp(box);
  });
  const auto read = Patiently("Lettura di lista.dat", [ready = disk.ready] {
    ready.wait();
    return Base::Result<int>(1);
  });
  ASSERT_FALSE(read);
  EXPECT_TRUE(IsGivenUp(read.error()));
  EXPECT_EQ(read.error().message, "Lettura di lista.dat annullata");
  EXPECT_EQ(List().ChannelCount, channels);
  EXPECT_EQ(UnderWay(), "");
  disk.goOn.set_value();

  const auto quick = Patiently("Lettura", [] { return Base::Result<int>(2); });
  ASSERT_TRUE(quick);
  EXPECT_EQ(*quick, 2);
}

TEST_F(Patience, SaveIsGivenUpUntilItsLastStep) {
  for (const bool tooLate : {false, true}) {
    const std::string path = folder_.Write("lenta.dat", "prima");
    SlowDisk disk;
    InTheBox([&](QProgressDialog& box) {
      GiveUp(box);
      if (!tooLate) return;
      EXPECT_EQ(box.findChild<QLabel*>()->text(), "Scrittura: manca solo l'ultimo passo…");
      QTimer::singleShot(100, [&] { disk.goOn.set_value(); });
    });
    auto ended = std::make_shared<std::promise<bool>>();
    auto end = ended->get_future();
    const auto saved = Patiently("Scrittura", [=, ready = disk.ready](Base::PointOfNoReturn& point) {
      auto replaced = Base::ReplaceFile(path, Base::AsBytes("dopo"), {}, [&]() -> Base::Outcome {
        if (!tooLate) ready.wait();
        auto looked = LookAt(point)();
        if (tooLate) ready.wait();
        return looked;
      });
      ended->set_value(static_cast<bool>(replaced));
      return replaced;
    });
    if (!tooLate) disk.goOn.set_value();
    EXPECT_EQ(end.get(), tooLate);
    EXPECT_EQ(static_cast<bool>(saved), tooLate);
    EXPECT_EQ(Base::AsText(Contents(path)), tooLate ? "dopo" : "prima");
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path()))
      EXPECT_FALSE(entry.path().filename().string().starts_with(".trovalis")) << entry.path();
  }
}

}  // namespace Ui
