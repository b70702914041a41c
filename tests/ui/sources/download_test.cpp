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
  Download download(limits, nullptr);
  std::optional<QByteArray> whole;
  bool ended = false;
  QObject::connect(&download, &Download::Finished, [&](bool good, const QByteArray& reply) {
    ended = true;
    if (good) whole = reply;
  });
  download.Start(address);
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

TEST_F(SmallWindow, AnAddressIsFetchedOnlyWhenTheUserAsksAndIsLoadedOrToldAndLeftEmpty) {
  const std::string path = folder_.Path("scaricato.sdx");
  const auto download = [this] { window_->findChild<QAbstractButton*>("Scarica")->click(); };
  const auto fetch = [&](const Server& server, const auto& expectEnd) {
    folder_.Write("scaricato.sdx", "SATCODX1 vecchia\r\n");
    folder_.Write("SDX.INI", server.Address().toStdString() + "?uno\r\nhttp://127.0.0.1:9/due.sdx\r\n");
    ASSERT_TRUE(driver_->Choose("ScaricaInternet"));
    auto* addresses = window_->findChild<QComboBox*>("Combo3");
    EXPECT_EQ(QString::number(addresses->count()) + addresses->currentText(), "2");
    addresses->setCurrentIndex(0);
    QTest::qWait(50);
    EXPECT_EQ(server.asked, 0);
    addresses->setEditText(server.Address());
    ExpectOpenedFlashChosen("Selezionare il file SDX di OUTPUT", path);
    expectEnd();
    download();
    EXPECT_TRUE(QTest::qWaitFor([this] { return driver_->Idle(); }, 5000));
    EXPECT_EQ(server.asked, 1);
  };
  folder_.Write("SDX.INI", "http://127.0.0.1:9/uno.sdx\r\n");
  ASSERT_TRUE(driver_->Choose("ScaricaInternet"));
  driver_->ExpectMessage("Si deve specificare il file da scaricare");
  download();
  window_->findChild<QComboBox*>("Combo3")->setEditText("http://127.0.0.1:9/uno.sdx");
  const Base::Bytes image = Contents(flash_);
  ExpectOpenedFlashChosen("Selezionare il file SDX di OUTPUT");
  download();
  EXPECT_EQ(Said(), "Non scaricato: il file scelto è la flash aperta o quella di output");
  EXPECT_EQ(Contents(flash_), image);
  const std::pair<QByteArray, QString> bad[] = {
      {Good + "  SATCODX", "  SATCODX"},
      {Good + "<html>", "<html>"},
      {"HTTP/1.0 200 OK\r\nContent-Length: 900\r\n\r\nSATCODX103 cut", "SATCODX103 cut"},
      {"HTTP/1.0 404 Not Found\r\n\r\nSATCODX103", "SATCODX103"}};
  for (const auto& c : bad) {
    const Server server(c.first);
    fetch(server,
          [&] { driver_->ExpectMessage("Errore di connessione a : " + server.Address() + c.second); });
    EXPECT_EQ(Contents(path).size(), 0U) << c.first.toStdString();
    EXPECT_EQ(Base::AsText(Contents(path + ".bak")), "SATCODX1 vecchia\r\n");
  }
  EXPECT_EQ(
      Said(),
      "Scaricamento non riuscito: il server risponde 404; la lista di prima resta come scaricato.sdx.bak");

  ASSERT_TRUE(driver_->Choose("VisualizzaBouquet"));
  const Server good(Good + "SATCODX1 uno\r\nSATCODX1 due\r\nsenza fine");
  fetch(good, [&] { driver_->ExpectDialog("Opzioni importazione SDX", [](QDialog& box) { box.reject(); }); });
  EXPECT_FALSE(Action("VisualizzaBouquet").isChecked()) << "the tree makes room for the list";
  EXPECT_EQ(Base::AsText(Contents(path)), "SATCODX1 uno\r\n\nSATCODX1 due\r\n");
  EXPECT_FALSE(std::filesystem::exists(path + ".bak")) << "a list has come in its place";
}

}  // namespace Ui
