// `FinestraAbout`: what the program is, its licence and its thanks. Accepted where the user wants the guide.
#pragma once

#include <QDialog>

namespace Ui {

class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  AboutDialog(const QString& programFolder, QWidget* parent);
};

}  // namespace Ui
