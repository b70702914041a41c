// Whether what a window shows can be read, measured from its picture.
#pragma once

#include "ui/kit/readable_style.h"

#include <QtWidgets>

#include <map>
#include <string>

namespace Ui {

// The strongest contrast of a pixel to the colour that most of them have, as text has to what is behind it.
inline double ContrastIn(const QImage& picture, const QRect& where) {
  std::map<QRgb, int> pixels;
  const QRect seen = where & picture.rect();
  for (int y = seen.top(); y <= seen.bottom(); ++y) {
    for (int x = seen.left(); x <= seen.right(); ++x) ++pixels[picture.pixel(x, y)];
  }
  if (pixels.empty()) return 21;
  const auto ground = std::max_element(pixels.begin(), pixels.end(), [](const auto& one, const auto& other) {
    return one.second < other.second;
  });
  double most = 1;
  for (const auto& [colour, count] : pixels) most = std::max(most, Contrast(colour, ground->first));
  return most;
}

// The texts of a window that cannot be read, a line each; what is disabled may be half as strong.
class UnreadableTexts {
 public:
  explicit UnreadableTexts(QWidget& shown) : shown_(shown), picture_(shown.grab().toImage()) {
    for (QWidget* widget : shown.findChildren<QWidget*>()) {
      if (!widget->isVisible() || widget->window() != &shown) continue;
      if (const QString text = TextOf(*widget); !text.isEmpty())
        Look(*widget, widget->rect(), text, widget->isEnabled());
      if (auto* view = qobject_cast<QAbstractItemView*>(widget)) LookAtCells(*view);
    }
  }

  [[nodiscard]] const std::string& Lines() const { return lines_; }

 private:
  static QString TextOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* button = qobject_cast<const QToolButton*>(&widget);
        button != nullptr && button->toolButtonStyle() == Qt::ToolButtonIconOnly)
      return {};
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
      return field->text().isEmpty() ? field->placeholderText() : field->text();
    return {};
  }

  void LookAtCells(const QAbstractItemView& view) {
    const QAbstractItemModel* model = view.model();
    if (model == nullptr || qobject_cast<const QHeaderView*>(&view) != nullptr) return;
    for (int y = 2; y < view.viewport()->height(); y += std::max(8, view.fontMetrics().height())) {
      for (int column = 0; column < model->columnCount(); ++column) {
        const QModelIndex row = view.indexAt({2, y});
        const QModelIndex cell = row.siblingAtColumn(column);
        if (!cell.data().toString().trimmed().isEmpty())
          // The frame of the current cell is no text.
          Look(*view.viewport(), view.visualRect(cell).adjusted(2, 2, -2, -2), cell.data().toString(),
               model->flags(cell).testFlag(Qt::ItemIsEnabled));
      }
    }
  }

  void Look(const QWidget& widget, const QRect& place, const QString& text, bool enabled) {
    // What is partly out of sight, be it scrolled away or behind another part, is not measured.
    if (place.isEmpty() || !QRegion(place).subtracted(widget.visibleRegion()).isEmpty()) return;
    const double scale = picture_.devicePixelRatio();
    const QPoint at = widget.mapTo(&shown_, place.topLeft());
    const double seen =
        ContrastIn(picture_, QRect((QPointF(at) * scale).toPoint(), (QSizeF(place.size()) * scale).toSize()));
    if (seen >= (enabled ? 4.5 : 2.25)) return;
    lines_ += QString("%1 \"%2\": %3 for \"%4\"\n")
                  .arg(widget.metaObject()->className(), widget.objectName())
                  .arg(seen, 0, 'f', 1)
                  .arg(text)
                  .toStdString();
  }

  QWidget& shown_;
  QImage picture_;
  std::string lines_;
};

}  // namespace Ui
