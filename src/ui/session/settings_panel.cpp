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
#include <QToolButton>
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

// "D-2.x" of "D- 2.x (3996 Canali)", "2000 canali" of "2000 Canali"
QString ShortCaption(std::string_view caption) {
  return Text(caption.substr(0, caption.find(" ("))).replace("D- ", "D-").replace("Canali", "canali");
}

std::optional<std::size_t> Index(const QButtonGroup& group) {
  const int id = group.checkedId();
  return id < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(id));
}

}  // namespace

SettingsPanel::SettingsPanel(QWidget* parent)
    : QWidget(parent), fold_(new QToolButton(this)), groups_(new QWidget(this)) {
  auto* all = new QHBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->addWidget(fold_, 0, Qt::AlignTop | Qt::AlignLeft);
  all->addWidget(groups_, 1);
  auto* row = new QHBoxLayout(groups_);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(10);
  fold_->setObjectName("RiduciOpzioni");
  fold_->setAutoRaise(true);
  fold_->setFixedHeight(fontMetrics().height() + 4);  // every pixel of it is one of the list's
  fold_->setFocusPolicy(Qt::StrongFocus);
  connect(fold_, &QToolButton::clicked, this, [this] { Q_EMIT FoldWanted(!Folded()); });
  quantiCanali_ = AddGroup("QuantiCanali", "Canali da copiare", Captions(Routines::QuantiCanali));
  flashScrittura_ = AddGroup("FlashScrittura", "Tipo Flash in scrittura", Captions(Routines::FlashScrittura));
  srDef_ = AddGroup("SRDef", "Definizione SR 22000", {Routines::SRDef.begin(), Routines::SRDef.end()});
  srDef_->button(0)->setChecked(true);
  ShowLine();
}

void SettingsPanel::Fold(bool folded) {
  if (folded == Folded()) return;
  const bool hadFocus = isAncestorOf(window()->focusWidget());
  groups_->setVisible(!folded);
  static_cast<QBoxLayout*>(layout())->setStretch(0, folded ? 1 : 0);
  ShowLine();
  if (hadFocus) fold_->setFocus();
}

bool SettingsPanel::Folded() const { return groups_->isHidden(); }

int SettingsPanel::FoldedAway() const { return groups_->sizeHint().height() - fold_->sizeHint().height(); }

// "3996 canali · scrive D-2.x · SR 22000 come 2"
void SettingsPanel::ShowLine() {
  const Routines::Settings chosen = Chosen();
  const QString capacity = chosen.quantiCanali ? QString("%1 canali").arg(chosen.Capacity())
                                               : QString("canali da copiare: da scegliere");
  const QString type =
      chosen.flashScrittura
          ? "scrive " + ShortCaption(Routines::FlashScrittura[*chosen.flashScrittura].caption)
          : QString("tipo di flash: da scegliere");
  const QString rates = chosen.srDef ? ShortCaption(Routines::SRDef[*chosen.srDef]) : QString();
  const QString line = QStringList{capacity, type, rates}.join(" · ");
  fold_->setText(line);
  fold_->setToolButtonStyle(Folded() ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
  fold_->setArrowType(Folded() ? Qt::RightArrow : Qt::DownArrow);
  fold_->setAccessibleName(Folded() ? "Mostra le opzioni: " + line : QString("Riduce le opzioni a una riga"));
  fold_->setToolTip(Folded() ? "Mostra le opzioni" : "Riduce le opzioni a una riga");
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
  Fold(false);
  Q_EMIT Missing();
  for (const QButtonGroup* group : {quantiCanali_, flashScrittura_, srDef_}) {
    if (group->checkedId() >= 0) continue;
    static_cast<SettingsGroup*>(group->parent())->StandOut(true);
    group->button(0)->setFocus(Qt::OtherFocusReason);
    return;
  }
}

QButtonGroup* SettingsPanel::AddGroup(const char* name, const QString& title,
                                      const std::vector<std::string_view>& captions) {
  auto* box = new SettingsGroup(title, groups_);
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
  connect(group, &QButtonGroup::idToggled, this, &SettingsPanel::ShowLine);
  connect(group, &QButtonGroup::idToggled, box, [box, group] {
    box->StandOut(false);
    // The Tab key comes to the option that is chosen, however it was.
    for (QAbstractButton* button : group->buttons())
      button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
  });
  column->addStretch();
  static_cast<QHBoxLayout*>(groups_->layout())->addWidget(box, 1);
  return group;
}

}  // namespace Ui
