#include "ui/kit/readable_style.h"

#include "ui/kit/themed_icon.h"

#include <QAbstractItemView>
#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

#include <cmath>

namespace Ui {
namespace {

constexpr double ReadableContrast = 5.5;  // 4.5 are left where a letter's strokes are thinner than a pixel
constexpr double VisibleContrast = 2;     // of what cannot be used now

double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

QColor Between(const QColor& one, const QColor& other) {
  return QColor((one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
                (one.blue() + other.blue()) / 2);
}

// The style draws edges in a darker shade of the window's colour.
template <class Option>
Option WithEdge(const QStyleOption& given) {
  constexpr int AgainstShade = 145;
  Option option;
  if (const auto* whole = qstyleoption_cast<const Option*>(&given)) {
    option = *whole;
  } else {
    option.QStyleOption::operator=(given);
  }
  const QColor edge = Between(option.palette.color(QPalette::Text), option.palette.color(QPalette::Base));
  option.palette.setColor(QPalette::Window, edge.lighter(AgainstShade));
  return option;
}

// Below the title, as the style lays the box out.
void DrawGroupFrame(const QStyleOption& option, QPainter& painter, int indicatorHeight, bool titled) {
  constexpr int TopMargin = 3;
  constexpr double Radius = 3;
  const int top = TopMargin + (titled ? std::max(indicatorHeight, option.fontMetrics.height()) : 0);
  QColor line = option.palette.color(QPalette::WindowText);
  QColor ground = line;
  line.setAlphaF(0.22F);
  ground.setAlphaF(0.03F);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(line);
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(option.rect.adjusted(0, top, 0, 0)).adjusted(0.5, 0.5, -0.5, -0.5), Radius,
                          Radius);
  painter.restore();
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const double first = Luminance(one);
  const double second = Luminance(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

void ReadableStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  constexpr int Step = 104;  // per cent
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    const QColor text = palette.color(group, QPalette::HighlightedText);
    QColor ground = palette.color(group, QPalette::Highlight);
    const bool lightText = Luminance(text) > Luminance(ground);
    for (int i = 0; i < 40 && Contrast(text, ground) < ReadableContrast; ++i)
      ground = lightText ? ground.darker(Step) : ground.lighter(Step);
    palette.setColor(group, QPalette::Highlight, ground);
    const QColor base = palette.color(group, QPalette::Base);
    QColor hint = Between(palette.color(group, QPalette::Text), base);
    for (int i = 0; i < 8 && Contrast(hint, base) < ReadableContrast; ++i)
      hint = Between(hint, palette.color(group, QPalette::Text));
    palette.setColor(group, QPalette::PlaceholderText, hint);
  }
  constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> TextsAndGrounds[] = {
      {QPalette::WindowText, QPalette::Window},
      {QPalette::Text, QPalette::Base},
      {QPalette::ButtonText, QPalette::Button}};
  for (const auto& [text, behind] : TextsAndGrounds) {
    const QColor ground = palette.color(QPalette::Disabled, behind);
    if (Contrast(palette.color(QPalette::Disabled, text), ground) < VisibleContrast)
      palette.setColor(QPalette::Disabled, text, Between(palette.color(QPalette::Active, text), ground));
  }
}

int ReadableStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* data) const {
  return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, data);
}

QIcon ReadableStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                  const QWidget* widget) const {
  if (icon == SP_ToolBarHorizontalExtensionButton) return IconNamed("more");
  if (icon == SP_LineEditClearButton) return IconNamed("clear");
  return QProxyStyle::standardIcon(icon, option, widget);
}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  if (option == nullptr) return QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_FrameGroupBox) {
    const auto* box = qobject_cast<const QGroupBox*>(widget);
    const bool titled = box == nullptr || box->isCheckable() || !box->title().isEmpty();
    return DrawGroupFrame(*option, *painter, pixelMetric(PM_IndicatorHeight, option, widget), titled);
  }
  const bool dark = option->palette.color(QPalette::Base).lightness() < 128;
  if (dark && (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)) {
    const auto edged = WithEdge<QStyleOptionButton>(*option);
    QProxyStyle::drawPrimitive(element, &edged, painter, widget);
  } else if (dark && element == PE_FrameLineEdit) {
    const auto edged = WithEdge<QStyleOptionFrame>(*option);
    QProxyStyle::drawPrimitive(element, &edged, painter, widget);
  } else if (element == PE_FrameFocusRect && qobject_cast<const QAbstractItemView*>(widget) != nullptr) {
    const bool selected = (option->state & State_Selected) != 0;
    painter->setPen(option->palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

}  // namespace Ui
