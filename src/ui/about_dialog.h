// `FinestraAbout`: what the program is, its licence and its thanks. Accepted where the user wants the guide.
#pragma once

#include <QDialog>

namespace Ui {

class FinestraAbout : public QDialog {
  Q_OBJECT

 public:
  explicit FinestraAbout(QWidget* parent);
};

}  // namespace Ui
