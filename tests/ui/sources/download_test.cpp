// What a server may do to a transfer.
#include "ui/sources/download.h"

#include "ui/kit/text.h"
#include "ui/window_fixture.h"

#include <QTcpServer>
#include <QTcpSocket>

namespace Ui {
namespace {

const QByteArray Good = "HTTP/1.0 200 OK\r\n\r\n";
const QByteArray List = Good + "SATCODX1 uno\r\n";

QByteArray Redirect(const QString& address) {
  return "HTTP/1.0 302 Found\r\nLocation: " + address.toUtf8() + "\r\n\r\n";
}

// A web server of this machine: gives every request the same answer, or silence where there is none.
class Server {
 public:
  explicit Server(const QByteArray& answer) {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, [this, answer] {
      QTcpSocket* socket = server_.nextPendingConnection();
      QObject::connect(socket, &QTcpSocket::readyRead, [this, socket, answer] {
        ++asked;
        if (answer.isEmpty()) return;
        socket->write(answer);
        if (!drips) return socket->disconnectFromHost();
        auto* drip = new QTimer(socket);
        QObject::connect(drip, &QTimer::timeout, [socket] { socket->write("x"); });
        drip->start(10);
      });
    });
  }

  [[nodiscard]] QString Address() const {
    return QString("http://127.0.0.1:%1/lista.sdx").arg(server_.serverPort());
  }

  int asked = 0;
  bool drips = false;  // bytes behind the answer, one by one and for ever

 private:
  QTcpServer server_;
};

// The reply where it came whole; nothing where the transfer ended otherwise.
std::optional<QByteArray> Fetch(const QString& address, const Download::Limits& limits = {}) {
  const auto download = NewDownload(limits);
  EXPECT_TRUE(download) << download.error().message;
  std::optional<QByteArray> whole;
  bool ended = false;
  (*download)->onFinished = [&](bool good, const QByteArray& reply) {
    ended = true;
    if (good) whole = reply;
  };
  (*download)->Start(address);
  EXPECT_TRUE(QTest::qWaitFor([&ended] { return ended; }, 5000)) << address.toStdString();
  return whole;
}

}  // namespace

TEST(DownloadLimits, NothingButTheWebIsFetched) {
  const Tests::TestFolder folder;
  const QString file = "file://" + PathText(folder.Write("lista.sdx", "SATCODX1 uno\r\n"));
  for (const QString& address : {file, QString("ftp://127.0.0.1/a.sdx"), QString("data:,SATCODX1")}) {
    EXPECT_FALSE(Fetch(address)) << address.toStdString();
    EXPECT_FALSE(Fetch(Server(Redirect(address)).Address())) << address.toStdString();
  }
  EXPECT_FALSE(Fetch(""));
  EXPECT_EQ(Fetch(Server(Redirect(Server(List).Address())).Address()), "SATCODX1 uno\r\n");
}

TEST(DownloadLimits, SizeAndTimeAreBounded) {
  const Server large(Good + QByteArray(5000, 'x'));
  EXPECT_TRUE(Fetch(large.Address(), {.bytes = 5000}));
  EXPECT_FALSE(Fetch(large.Address(), {.bytes = 4999}));
  const Server silent("");
  EXPECT_FALSE(Fetch(silent.Address(), {.silence = 200}));
  Server dripping(List);
  dripping.drips = true;
  EXPECT_FALSE(Fetch(dripping.Address(), {.silence = 1000, .whole = 300}));
}

class Downloading : public SmallWindow {
 protected:
  void SetUp() override {
    SmallWindow::SetUp();
    folder_.Write("SDX.INI", "http://127.0.0.1:9/uno.sdx?uno\r\nhttp://127.0.0.1:9/due.sdx\r\n\r\n");
    ASSERT_TRUE(driver_->Choose("ScaricaInternet"));
  }
  void Scarica() { window_->findChild<QAbstractButton*>("Scarica")->click(); }
  [[nodiscard]] QComboBox& Addresses() const { return *window_->findChild<QComboBox*>("Combo3"); }
  void Fetch(const Server& server, const std::function<void()>& expectEnd) {
    folder_.Write("scaricato.sdx", "SATCODX1 vecchia\r\n");
    Addresses().setEditText(server.Address());
    ExpectOpenedFlashChosen("Selezionare il file SDX di OUTPUT", path_);
    expectEnd();
    Scarica();
    EXPECT_TRUE(QTest::qWaitFor([this] { return driver_->Idle(); }, 5000));
  }

  std::string path_ = folder_.Path("scaricato.sdx");
};

TEST_F(Downloading, HappensOnlyWhenTheUserAsks) {
  EXPECT_EQ(QString::number(Addresses().count()) + Addresses().currentText(), "3");
  EXPECT_EQ(Addresses().itemData(2, Qt::AccessibleTextRole).toString(), "(vuota)");
  Addresses().setCurrentIndex(2);
  driver_->ExpectMessage("Si deve specificare il file da scaricare");
  Scarica();
  const Server good(Good + "SATCODX1 uno\r\nSATCODX1 due\r\nsenza fine");
  Addresses().setEditText(good.Address());
  const Base::Bytes image = Contents(flash_);
  ExpectOpenedFlashChosen("Selezionare il file SDX di OUTPUT");
  Scarica();
  EXPECT_EQ(Said(), "Non scaricato: il file scelto è la flash aperta o quella di output");
  EXPECT_TRUE(Contents(flash_) == image);
  EXPECT_EQ(good.asked, 0);
  ASSERT_TRUE(driver_->Choose("VisualizzaBouquet"));
  const auto rejectOptions = [this] {
    driver_->ExpectDialog("Opzioni importazione SDX", [](QDialog& box) { box.reject(); });
  };
  Fetch(good, rejectOptions);
  EXPECT_FALSE(Action("VisualizzaBouquet").isChecked()) << "the tree makes room for the list";
  EXPECT_EQ(Base::AsText(Contents(path_)), "SATCODX1 uno\r\n\nSATCODX1 due\r\n");
  EXPECT_FALSE(std::filesystem::exists(path_ + ".bak")) << "a list has come in its place";
  folder_.Write("scaricato.sdx.bak", "SATCODX1 vecchia\r\n");
  ASSERT_TRUE(driver_->Choose("ScaricaInternet"));
  Fetch(good, rejectOptions);
  EXPECT_TRUE(std::filesystem::exists(path_ + ".bak")) << "a copy of the user's own";
}

TEST_F(Downloading, AReplyThatIsNoListIsToldAndItsFileLeftEmpty) {
  for (const auto& [reply, told] :
       {std::pair{Good + "  SATCODX", "  SATCODX"},
        {Good + "<html>", "<html>"},
        {"HTTP/1.0 200 OK\r\nContent-Length: 900\r\n\r\nSATCODX103 cut", "SATCODX103 cut"},
        {"HTTP/1.0 404 Not Found\r\n\r\nSATCODX103", "SATCODX103"}}) {
    const Server server(reply);
    Fetch(server, [&, text = told] {
      driver_->ExpectMessage("Errore di connessione a : " + server.Address() + text);
    });
    EXPECT_TRUE(Contents(path_).empty()) << told;
    EXPECT_EQ(Base::AsText(Contents(path_ + ".bak")), "SATCODX1 vecchia\r\n");
  }
  EXPECT_EQ(
      Said(),
      "Scaricamento non riuscito: il server risponde 404; la lista di prima resta come scaricato.sdx.bak");
}

}  // namespace Ui
