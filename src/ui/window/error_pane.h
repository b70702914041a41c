// The pane `FrameErrori` with the mistakes found in Bouquets.txt.
#pragma once

#include <QGroupBox>

#include <string>
#include <vector>

namespace Ui {

class ErrorPane : public QGroupBox {
  Q_OBJECT

 public:
  // Hidden when there are no `errors`.
  ErrorPane(const std::vector<std::string>& errors, QWidget* parent);
};

}  // namespace Ui
