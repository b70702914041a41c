// A field for a name in the receiver's own bytes: it shows while one types how many are left.
#pragma once

#include <QLineEdit>

namespace Ui {

class NameEdit : public QLineEdit {
  Q_OBJECT

 public:
  // `most` bytes of the code page.
  NameEdit(int most, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  [[nodiscard]] QString Hint() const;
  void MakeRoom();

  int most_;
};

}  // namespace Ui
