// `FinestraAbout`: what the program is, its licence and its thanks.
#pragma once

#include <QDialog>

namespace Ui {

class FinestraAbout : public QDialog {
  Q_OBJECT

 public:
  explicit FinestraAbout(QWidget* parent);
};

}  // namespace Ui
