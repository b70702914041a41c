// Controls in a row that goes on below where the window is too narrow for all of them.
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace Ui {

class FlowLayout : public QLayout {
 public:
  using QLayout::QLayout;
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override;
  [[nodiscard]] int count() const override;
  [[nodiscard]] QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  // In one row; the least is that of the widest control.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  [[nodiscard]] std::vector<QRect> Places(int width) const;

  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace Ui
