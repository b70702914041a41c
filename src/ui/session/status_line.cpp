#include "ui/session/status_line.h"

#include "base/file.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>

namespace Ui {

namespace {

// A flat button would look like more of the text beside it.
void Underline(QWidget& link) {
  QFont font = link.font();
  font.setUnderline(true);
  link.setFont(font);
}

}  // namespace

StatusLine::StatusLine(QStatusBar& bar)
    : QObject(&bar),
      line_(new QWidget(&bar)),
      loss_(new ElidedLabel(Qt::ElideRight, line_)),
      which_(new QPushButton("Quali?", line_)),
      result_(new ElidedLabel(Qt::ElideRight, line_)),
      link_(new QPushButton(line_)),
      channels_(AddFigure(bar, "CanaliUsati")),
      transponders_(AddFigure(bar, "TransponderUsati")),
      clipboard_(AddFigure(bar, "CanaliCopiati")),
      unsaved_(AddFigure(bar, "ModificheNonSalvate")),
      hidden_(AddFigure(bar, "RigheNascoste")),
      output_(new ElidedLabel(Qt::ElideMiddle, &bar)),
      progress_(new QProgressBar(line_)) {
  result_->setObjectName("UltimoRisultato");
  loss_->setObjectName("RisultatoConPerdite");
  loss_->setContentsMargins(4, 0, 4, 0);
  loss_->setAutoFillBackground(true);
  QPalette warning = loss_->palette();
  warning.setColor(QPalette::Window, QColor(0xFF, 0xD0, 0x80));
  warning.setColor(QPalette::WindowText, Qt::black);
  loss_->setPalette(warning);
  which_->setObjectName("QualiCanali");
  connect(which_, &QPushButton::clicked, this, [this] { Q_EMIT ChannelsWanted(losses_.back().channels); });
  ShowLastLoss();
  link_->setObjectName("VaiAlRisultato");
  link_->setFlat(true);
  Underline(*link_);
  link_->setMaximumHeight(result_->sizeHint().height());
  link_->hide();
  connect(link_, &QPushButton::clicked, this, [this] { Q_EMIT GoToWanted(slot_); });
  hidden_->hide();
  output_->setObjectName("FlashOutput");
  bar.addPermanentWidget(output_, 1);

  progress_->setObjectName("ProgressBar1");
  progress_->setAccessibleName("Avanzamento");
  progress_->setFixedSize(110, result_->sizeHint().height());
  progress_->setTextVisible(false);
  QSizePolicy policy = progress_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  progress_->setSizePolicy(policy);
  progress_->hide();

  auto* row = new QHBoxLayout(line_);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(loss_, 1);
  row->addWidget(which_);
  row->addWidget(result_);
  row->addWidget(link_);
  row->addStretch(1);
  row->addWidget(progress_);
}

ElidedLabel* StatusLine::AddFigure(QStatusBar& bar, const char* name) {
  auto* label = new ElidedLabel(Qt::ElideRight, &bar);
  label->setObjectName(name);
  label->setContentsMargins(4, 0, 8, 0);
  bar.addPermanentWidget(label);
  return label;
}

void StatusLine::Remark(const QString& text) {
  resultShown_ = false;
  QTimer::singleShot(0, this,
                     [this, text] { ShowResult(resultShown_ ? result_->text() + ". " + text : text); });
}

void StatusLine::ShowHidden(const QString& grid, const QString& text) {
  hiddenRows_[grid] = text;
  QStringList told;
  for (const auto& [name, rows] : hiddenRows_) {
    if (!rows.isEmpty()) told += rows;
  }
  hidden_->Show(told.join("; "));
  hidden_->setVisible(!told.isEmpty());
}

void StatusLine::ShowResult(const QString& text, int slot) {
  slot_ = slot;
  link_->setText(QString("Vai al %1").arg(slot));
  link_->setVisible(slot != 0);
  resultShown_ = true;
  result_->Show(text);
  result_->show();
  Q_EMIT ResultShown(text);
}

void StatusLine::ShowLoss(const QString& text, const QString& channels, int step) {
  if (step == 0) losses_.clear();
  losses_.push_back({text, channels, step});
  ShowResult(text);
  ShowLastLoss();
  result_->hide();  // it would say the same beside the warning
}

void StatusLine::ForgetLosses() {
  losses_.clear();
  ShowLastLoss();
}

void StatusLine::ForgetLossOf(int step) {
  if (std::erase_if(losses_, [step](const Loss& loss) { return loss.step == step; }) > 0) ShowLastLoss();
}

void StatusLine::ShowLastLoss() {
  const Loss last = losses_.empty() ? Loss{} : losses_.back();
  loss_->Show(last.text.isEmpty() ? QString() : "⚠ " + last.text);
  loss_->setVisible(!losses_.empty());
  which_->setVisible(!last.channels.isEmpty());
  if (losses_.empty()) result_->show();
}

void StatusLine::ShowList(const Routines::State& state, bool unsaved, int clipboard) {
  channels_->Show(state.Loaded ? QString("Canali %1 di %2").arg(UsedChannels(state)).arg(state.ChannelCount)
                               : QString("Nessuna flash caricata"));
  transponders_->Show(
      QString("Transponder %1 di %2").arg(UsedTransponders(state)).arg(state.TransponderCount));
  transponders_->setVisible(state.Loaded);
  clipboard_->Show(QString("Appunti %1").arg(clipboard));
  clipboard_->setVisible(clipboard > 0);
  unsaved_->Show(!unsaved ? "" : kept_ ? "Modifiche non salvate" : "Modifiche non salvate né conservate");
  unsaved_->setVisible(unsaved);
  const QString name = state.OutputFlash.empty() ? "nessuna" : PathText(Base::FileName(state.OutputFlash));
  output_->Show("Flash di output : " + name, PathText(state.OutputFlash));
}

void StatusLine::ShowProgress(int percent) {
  progress_->setValue(percent);
  progress_->setVisible(percent < 100);
  progress_->repaint();
}

}  // namespace Ui
