// The frame `FinestraSDX`: which list to download.
#pragma once

#include <QGroupBox>

class QComboBox;

namespace Ui {

class DownloadFrame : public QGroupBox {
  Q_OBJECT

 public:
  explicit DownloadFrame(QWidget* parent);

  // Shows the frame with these addresses to choose from; another one can be typed.
  void Ask(const QStringList& addresses);

 Q_SIGNALS:
  void Chosen(const QString& address);

 private:
  void Fill();

  QComboBox* addresses_ = nullptr;
};

}  // namespace Ui
