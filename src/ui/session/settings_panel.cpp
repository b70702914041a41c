#include "ui/session/settings_panel.h"

#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"
#include "ui/list/table_model.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionGroupBox>
#include <QVBoxLayout>

namespace Ui {
namespace {

// A group that can stand out, in a colour that shows on light and dark alike.
class SettingsGroup : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

  void StandOut(bool on) {
    standsOut_ = on;
    setAccessibleDescription(on ? "Da scegliere" : "");
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QGroupBox::paintEvent(event);
    if (!standsOut_) return;
    QColor colour = ToColor(Colours::Found);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 3));
    colour.setAlpha(45);
    painter.setBrush(colour);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const QRect heading =
        style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, heading.bottom() + 2.5, -1.5, -1.5), 5, 5);
  }

 private:
  bool standsOut_ = false;
};

template <std::size_t N>
std::vector<std::string_view> Captions(const std::array<Routines::CapacityOption, N>& options) {
  std::vector<std::string_view> captions;
  for (const Routines::CapacityOption& option : options) captions.push_back(option.caption);
  return captions;
}

std::optional<std::size_t> Index(const QButtonGroup& group) {
  const int id = group.checkedId();
  return id < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(id));
}

}  // namespace

SettingsPanel::SettingsPanel(QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(10);
  quantiCanali_ = AddGroup("QuantiCanali", "Canali da copiare", Captions(Routines::QuantiCanali));
  flashScrittura_ = AddGroup("FlashScrittura", "Tipo Flash in scrittura", Captions(Routines::FlashScrittura));
  srDef_ = AddGroup("SRDef", "Definizione SR 22000", {Routines::SRDef.begin(), Routines::SRDef.end()});
  srDef_->button(0)->setChecked(true);
}

Routines::Settings SettingsPanel::Chosen() const {
  return {Index(*quantiCanali_), Index(*flashScrittura_), Index(*srDef_)};
}

void SettingsPanel::Choose(const Routines::Settings& settings) {
  const std::pair<QButtonGroup*, std::optional<std::size_t>> choices[] = {
      {quantiCanali_, settings.quantiCanali},
      {flashScrittura_, settings.flashScrittura},
      {srDef_, settings.srDef}};
  for (const auto& [group, index] : choices) {
    if (index) group->button(static_cast<int>(*index))->setChecked(true);
  }
  Q_EMIT Clicked();
}

void SettingsPanel::PointOutMissing() {
  for (const QButtonGroup* group : {quantiCanali_, flashScrittura_, srDef_}) {
    if (group->checkedId() >= 0) continue;
    static_cast<SettingsGroup*>(group->parent())->StandOut(true);
    group->button(0)->setFocus(Qt::OtherFocusReason);
    return;
  }
}

QButtonGroup* SettingsPanel::AddGroup(const char* name, const QString& title,
                                      const std::vector<std::string_view>& captions) {
  auto* box = new SettingsGroup(title, this);
  box->setObjectName(name);
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(10, 4, 10, 4);
  column->setSpacing(2);
  auto* group = new QButtonGroup(box);
  for (std::size_t i = 0; i < captions.size(); ++i) {
    auto* button = new QRadioButton(Text(captions[i]), box);
    button->setObjectName(QString("%1_%2").arg(name).arg(i));
    column->addWidget(button);
    group->addButton(button, static_cast<int>(i));
  }
  connect(group, &QButtonGroup::idClicked, this, &SettingsPanel::Clicked);
  connect(group, &QButtonGroup::idToggled, box, [box, group] {
    box->StandOut(false);
    // The Tab key comes to the option that is chosen, however it was.
    for (QAbstractButton* button : group->buttons())
      button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
  });
  column->addStretch();
  static_cast<QHBoxLayout*>(layout())->addWidget(box, 1);
  return group;
}

}  // namespace Ui
